// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/engine_http.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace tarvo {
namespace {

using State = StyleResource::State;
constexpr std::chrono::milliseconds firstPause{20}, longestPause{100};

std::chrono::steady_clock::duration steadyNow() { return std::chrono::steady_clock::now().time_since_epoch(); }

// Why nothing can be read of it.
std::error_code causeOf(const StyleResource::Front& front) {
  if (front.state == State::damaged) return Reason::damaged;
  return front.state == State::nothing ? Reason::absentThere : front.cause;
}

}  // namespace

EngineHttp::EngineHttp(HttpPlace place, HttpTimes times, Now now)
    : resource_(std::move(place)), times_(times), now_(now ? std::move(now) : steadyNow) {}

std::optional<Deadline> EngineHttp::begin(Milliseconds limit) {
  begun_ = now_();
  if (begun_ < silentUntil_) return std::nullopt;
  if (begun_ - finished_ >= times_.pause) spent_ = {};
  const auto left = std::chrono::duration_cast<Milliseconds>(times_.action - spent_);
  if (left < times_.prompt) return std::nullopt;
  return Deadline(std::min(limit, left));
}

void EngineHttp::finish() {
  finished_ = now_();
  if (resource_.takeLateness()) silentUntil_ = finished_ + times_.silence;
  const auto time = finished_ - begun_;
  if (time > times_.prompt) spent_ += time;
}

// At the end of counting all sets have one revision, and another hash is newer.
std::uint64_t EngineHttp::nextRevision() const { return std::min(known_ + 1, lastRevision); }

StyleResource::Front EngineHttp::readFront(const Deadline& deadline) {
  StyleResource::Front front = resource_.front(deadline);
  known_ = std::max(known_, front.stamp.revision);
  return front;
}

bool EngineHttp::checkConnectionWithCurl() {
  const std::optional<Deadline> deadline = begin(times_.probe);
  couldReach_ = failure(Attempt::reach, Reason::notAsked);
  if (!deadline) return false;
  const StyleResource::Front front = readFront(*deadline);
  finish();
  couldReach_ = front.state != State::unknown ? Result<>() : failure(Attempt::reach, front.cause);
  return couldReach_.has_value();
}

void EngineHttp::sendRegistStyle(const StyleSet& styles, std::string& updateString) {
  const StylePayload payload(styles);
  SetStamp stamp = payload.stamp(nextRevision());
  const std::optional<Deadline> deadline = begin(times_.operation);
  didRegister_ = deadline ? keepTrying(payload, stamp, *deadline) : failure(Attempt::store, Reason::notAsked);
  if (deadline) finish();
  updateString = stamp.text();
}

Result<> EngineHttp::keepTrying(const StylePayload& payload, SetStamp& stamp, const Deadline& deadline) {
  bool wasRaced = false;
  for (auto pause = firstPause;; pause = std::min(2 * pause, longestPause)) {
    const StyleResource::Locking locking = resource_.lock(deadline);
    const bool isBusy = locking == StyleResource::Locking::busy;
    const Try result = isBusy ? Try::raced : tryToStore(payload, stamp, deadline);
    resource_.unlock(deadline);
    if (result == Try::stored) return {};
    if (result == Try::failed) return failure(Attempt::store, wasRaced ? std::error_code(Reason::contended) : failed_);
    wasRaced = true;
    std::this_thread::sleep_for(std::min(pause, deadline.left()));
  }
}

// stamp: that of the set as it is stored, or would be.
EngineHttp::Try EngineHttp::tryToStore(const StylePayload& payload, SetStamp& stamp, const Deadline& deadline) {
  const StyleResource::Front before = readFront(deadline);
  stamp = payload.stamp(nextRevision());
  failed_ = before.cause;
  if (before.state == State::unknown) return Try::failed;
  if (standsIn_ && before.state != State::nothing) {
    failed_ = std::make_error_code(std::errc::file_exists);
    return Try::failed;
  }
  const std::string bytes = payload.bytes(stamp.revision);
  const StyleResource::Storing storing = resource_.store(bytes, before, deadline);
  failed_ = resource_.cause();
  if (storing == StyleResource::Storing::failed) return Try::failed;
  if (storing == StyleResource::Storing::raced) return Try::raced;
  const StyleResource::Front after = readFront(deadline);
  failed_ = after.cause;
  if (after.state == State::unknown) return Try::failed;
  const bool isWhole = after.size == bytes.size() || after.size == 0;
  return after.stamp == stamp && isWhole ? Try::stored : Try::raced;
}

bool EngineHttp::checkStyle() {
  const std::optional<Deadline> deadline = begin(times_.operation);
  if (!deadline) return true;
  const StyleResource::Front front = readFront(*deadline);
  finish();
  return front.state != State::nothing;
}

std::optional<ReadPayload> EngineHttp::readWhole(const Deadline& deadline) {
  Result<ReadPayload> set = resource_.whole(deadline);
  if (set) return std::move(*set);
  couldRead_ = set.error();
  return std::nullopt;
}

bool EngineHttp::requestStyle(Array& styles, std::string& localUpdate) {
  const SetStamp local = SetStamp::parse(localUpdate);
  known_ = std::max(known_, local.revision);
  couldRead_ = failure(Attempt::fetch, Reason::notAsked);
  const std::optional<Deadline> deadline = begin(times_.operation);
  if (!deadline) return false;
  const StyleResource::Front front = readFront(*deadline);
  const bool isNewer = front.state == State::held && front.stamp.isNewerThan(local);
  couldRead_ = front.state == State::held ? Result<>() : failure(Attempt::fetch, causeOf(front));
  std::optional<ReadPayload> set;
  if (isNewer) set = readWhole(*deadline);
  finish();
  if (!set || !set->stamp.isNewerThan(local)) return false;
  known_ = std::max(known_, set->stamp.revision);
  styles = std::move(set->styles);
  localUpdate = set->stamp.text();
  return true;
}

}  // namespace tarvo
