// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/style_resource.h"

#include <charconv>
#include <random>
#include <utility>

namespace tarvo {
namespace {

// A lock outlives every operation, but not much: its owner may be gone.
constexpr const char* lockTime = "Timeout: Second-2";
constexpr std::string_view lockBody =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<lockinfo xmlns=\"DAV:\"><lockscope><exclusive/></lockscope><locktype><write/></locktype></lockinfo>\n";

constexpr std::string_view lockFolder = ".lock/", lockOwner = ".lock/owner";
constexpr std::chrono::milliseconds leastPatience{2000}, mostPatience{3000}, timeToUnlock{1000};

enum Status {
  created = 201,
  partial = 206,
  notFound = 404,
  notAllowed = 405,
  gone = 410,
  conditionFailed = 412,
  noSuchRange = 416,
  locked = 423
};
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

// Machines that wait for one folder do not lose their patience at one moment.
StyleResource::StyleResource(HttpPlace place) : client_(std::move(place)) {
  std::random_device random;
  const auto between = static_cast<int>((mostPatience - leastPatience).count());
  patience_ = leastPatience + std::chrono::milliseconds(std::uniform_int_distribution<int>(0, between)(random));
  for (int i = 0; i < 4; ++i) name_ += std::to_string(random()) + ' ';
}

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
  if (!offersLocks_) return lockByFolder(deadline);
  const HttpAnswer answer = send({"LOCK", {lockTime, "Depth: 0", "Content-Type: application/xml"}, lockBody}, deadline);
  if (answer.isWhole() && answer.status == locked) return Locking::busy;
  const bool refused = (answer.status >= 400 && answer.status < 500) || answer.status == notImplemented;
  if (answer.isWhole() && refused) offersLocks_ = false;
  if (isSuccess(answer)) lockToken_ = answer.header("lock-token");
  if (!lockToken_.empty()) return Locking::held;
  return offersLocks_ ? Locking::notOffered : lockByFolder(deadline);
}

void StyleResource::unlock() {
  const std::error_code cause = cause_;
  const Deadline deadline(timeToUnlock);
  if (std::exchange(holdsFolder_, false)) send({"DELETE", {"Depth: infinity"}, {}, lockFolder}, deadline);
  const std::string token = std::exchange(lockToken_, {});
  if (!token.empty()) send({"UNLOCK", {"Lock-Token: " + token}, {}}, deadline);
  cause_ = cause;
}

bool StyleResource::isFolderThere(const Deadline& deadline) {
  const HttpAnswer answer = send({"GET", {notFromCaches}, {}, lockFolder}, deadline);
  return answer.isWhole() && answer.status != notFound && answer.status != gone;
}

// A folder that is refused and not there may have gone in between: only several such answers say that none is offered.
StyleResource::Locking StyleResource::lockByFolder(const Deadline& deadline) {
  constexpr int tries = 3;
  for (int i = 0; i < tries && folders_ != Offered::no; ++i) {
    const HttpAnswer answer = send({"MKCOL", {}, {}, lockFolder}, deadline);
    if (!answer.isWhole()) return Locking::notOffered;
    holdsFolder_ = answer.status == created;
    const bool isRefused = !holdsFolder_ && answer.status == notAllowed;
    if (holdsFolder_ || (isRefused && folders_ == Offered::unknown && isFolderThere(deadline))) folders_ = Offered::yes;
    if (holdsFolder_) {
      foundFolder_.reset();
      send({"PUT", {"Content-Type: text/plain"}, name_, lockOwner}, deadline);
    }
    if (holdsFolder_) return Locking::held;
    if (folders_ == Offered::yes) return waitForFolder(deadline);
    if (answer.status != notAllowed) break;
  }
  folders_ = Offered::no;
  return Locking::notOffered;
}

// While others store, the folder is now this one's and now that one's; one that stays somebody's was left behind.
StyleResource::Locking StyleResource::waitForFolder(const Deadline& deadline) {
  std::string owner = send({"GET", {notFromCaches}, {}, lockOwner}, deadline).body;
  const auto now = std::chrono::steady_clock::now();
  if (!foundFolder_ || owner != ownerThen_) foundFolder_ = now;
  ownerThen_ = std::move(owner);
  if (now - *foundFolder_ >= patience_) {
    send({"DELETE", {"Depth: infinity"}, {}, lockFolder}, deadline);
    foundFolder_.reset();
  }
  return Locking::busy;
}

}  // namespace tarvo
