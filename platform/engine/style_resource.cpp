// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/style_resource.h"

#include <charconv>
#include <utility>

namespace tarvo {
namespace {

// A lock outlives every operation, but not much: its owner may be gone.
constexpr const char* lockTime = "Timeout: Second-2";
constexpr std::string_view lockBody =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<lockinfo xmlns=\"DAV:\"><lockscope><exclusive/></lockscope><locktype><write/></locktype></lockinfo>\n";

enum Status { partial = 206, notFound = 404, gone = 410, conditionFailed = 412, noSuchRange = 416, locked = 423 };
constexpr int notImplemented = 501;
constexpr const char* notFromCaches = "Cache-Control: no-cache";

bool isSuccess(const HttpAnswer& answer) { return answer.isWhole() && answer.status >= 200 && answer.status < 300; }

bool isNothing(const HttpAnswer& answer) {
  const int status = answer.status;
  if (status == notFound || status == gone || status == noSuchRange) return true;
  return isSuccess(answer) && answer.body.empty();  // locking what is not there can leave an empty file
}

// "bytes 0-511/31204" gives 31204, "bytes 0-511/*" 0.
std::size_t wholeSize(const HttpAnswer& answer) {
  if (answer.status != partial) return answer.body.size();
  const std::string range = answer.header("content-range");
  std::size_t size = 0;
  std::from_chars(range.data() + range.find('/') + 1, range.data() + range.size(), size);
  return size;
}

std::string strongTag(const HttpAnswer& answer) {
  std::string tag = answer.header("etag");
  return tag.starts_with('"') ? tag : "";
}

}  // namespace

HttpAnswer StyleResource::send(const HttpRequest& request, const Deadline& deadline) {
  HttpAnswer answer = client_.send(request, deadline.left());
  isLate_ = isLate_ || answer.arrival == HttpAnswer::Arrival::late;
  cause_ = answer.cause ? answer.cause : std::error_code(Reason::refused);
  return answer;
}

bool StyleResource::takeLateness() { return std::exchange(isLate_, false); }

StyleResource::Front StyleResource::front(const Deadline& deadline) {
  const std::string range = "Range: bytes=0-" + std::to_string(payloadFrontSize - 1);
  const HttpAnswer answer = send({"GET", {range, notFromCaches}, {}}, deadline);
  Front front;
  front.cause = cause_;
  if (!answer.isWhole()) return front;
  if (isNothing(answer)) {
    front.state = State::nothing;
  } else if (isSuccess(answer)) {
    auto stamp = readPayloadFront(answer.body);
    front.state = stamp ? State::held : State::damaged;
    if (stamp) front.stamp = std::move(*stamp);
    front.size = wholeSize(answer);
    front.tag = strongTag(answer);
  }
  return front;
}

Result<ReadPayload> StyleResource::whole(const Deadline& deadline) {
  const HttpAnswer answer = send({"GET", {notFromCaches}, {}}, deadline);
  if (!isSuccess(answer) || answer.status == partial) return Failure{address(), Attempt::fetch, cause_};
  std::optional<ReadPayload> set = readPayload(answer.body);
  if (!set) return Failure{address(), Attempt::fetch, Reason::damaged};
  return std::move(*set);
}

StyleResource::Storing StyleResource::store(std::string_view bytes, const Front& before, const Deadline& deadline) {
  std::vector<std::string> headers{"Content-Type: application/xml"};
  if (!lockToken_.empty()) {
    headers.push_back("If: (" + lockToken_ + ")");
  } else if (before.state == State::nothing) {
    headers.emplace_back("If-None-Match: *");
  } else if (!before.tag.empty()) {
    headers.push_back("If-Match: " + before.tag);
  }
  const HttpAnswer answer = send({"PUT", std::move(headers), bytes}, deadline);
  if (isSuccess(answer)) return Storing::done;
  const bool raced = answer.status == conditionFailed || answer.status == locked;
  return answer.isWhole() && raced ? Storing::raced : Storing::failed;
}

StyleResource::Locking StyleResource::lock(const Deadline& deadline) {
  if (!offersLocks_) return Locking::notOffered;
  const HttpAnswer answer = send({"LOCK", {lockTime, "Depth: 0", "Content-Type: application/xml"}, lockBody}, deadline);
  if (answer.isWhole() && answer.status == locked) return Locking::busy;
  const bool refused = (answer.status >= 400 && answer.status < 500) || answer.status == notImplemented;
  if (answer.isWhole() && refused) offersLocks_ = false;
  if (isSuccess(answer)) lockToken_ = answer.header("lock-token");
  return lockToken_.empty() ? Locking::notOffered : Locking::held;
}

void StyleResource::unlock(const Deadline& deadline) {
  if (lockToken_.empty()) return;
  send({"UNLOCK", {"Lock-Token: " + std::exchange(lockToken_, {})}, {}}, deadline);
}

}  // namespace tarvo
