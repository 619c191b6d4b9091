// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/set_delivery.h"

#include <thread>
#include <utility>

namespace tarvo {

namespace {

using State = StyleResource::State;
constexpr std::chrono::milliseconds firstPause{20}, longestPause{100};

std::shared_ptr<const SharedBase> shared(std::optional<SharedBase> base) {
  return base ? std::make_shared<const SharedBase>(std::move(*base)) : nullptr;
}

// Whether nothing of the set is missing there, as far as the server tells.
bool isWhole(const StyleResource::Front& front, const EncodedSet& set) {
  return front.size == 0 || front.size == set.payload.bytes(front.stamp.revision).size();
}

}  // namespace

SetDelivery::SetDelivery(HttpPlace place, FileService& files, BaseFile base)
    : resource_(std::move(place)), files_(files), base_(std::move(base)) {}

Failure SetDelivery::failure(Attempt attempt) const { return {resource_.address(), attempt, failed_}; }

StyleResource::Front SetDelivery::readFront(const Deadline& deadline) {
  StyleResource::Front front = resource_.front(deadline);
  noteRevision(front.stamp.revision);
  const bool isKnown = view_.state == front.state && view_.stamp == front.stamp;
  view_.state = front.state;
  view_.cause = failed_ = front.cause;
  if (isKnown) return front;
  view_.stamp = front.stamp;
  view_.styles = nullptr;
  lookUpBase();
  if (view_.showsBase() && !isWhole(front, view_.base->set)) view_.state = front.state = State::damaged;
  return front;
}

void SetDelivery::lookUpBase() {
  const bool isHeld = view_.state == State::held;
  view_.base = isHeld ? shared(base_.holding(view_.stamp)) : nullptr;
  if (view_.showsBase() && view_.styles == nullptr) view_.styles = {view_.base, &view_.base->set.styles};
  view_.unheard = isHeld ? std::make_shared<const std::vector<Array>>(base_.promisedSince(view_.stamp)) : nullptr;
}

// What is held is no set of that stamp any more when somebody stores in between.
void SetDelivery::fetchHeld(const Deadline& deadline) {
  if (view_.state != State::held || view_.held() != nullptr) return;
  Result<ReadPayload> set = resource_.whole(deadline);
  if (set && set->stamp != view_.stamp) {
    noteRevision(set->stamp.revision);
    view_.stamp = set->stamp;
    lookUpBase();
  }
  if (set) {
    view_.styles = std::make_shared<const Array>(std::move(set->styles));
  } else {
    failed_ = set.error().cause;
    view_.state = failed_ == Reason::damaged ? State::damaged : State::unknown;
    view_.cause = failed_;
  }
}

const ServiceView& SetDelivery::look(const Deadline& deadline) {
  readFront(deadline);
  fetchHeld(deadline);
  return view_;
}

Result<> SetDelivery::deliver(const OutgoingSet& out, const Deadline& deadline) {
  noteRevision(out.lastUpdate.revision);
  bool wasRaced = false;
  for (auto pause = firstPause;; pause = std::min(2 * pause, longestPause)) {
    const StyleResource::Locking locking = resource_.lock(deadline);
    const Try result = locking == StyleResource::Locking::busy ? Try::raced : tryToDeliver(out, deadline);
    resource_.unlock();
    if (result == Try::stored) return {};
    if (wasRaced && deadline.isOver()) failed_ = Reason::contended;
    if (result == Try::failed) return failure(Attempt::store);
    wasRaced = true;
    std::this_thread::sleep_for(std::min(pause, deadline.left()));
  }
}

SetDelivery::Try SetDelivery::tryToDeliver(const OutgoingSet& out, const Deadline& deadline) {
  const StyleResource::Front before = readFront(deadline);
  if (before.state == State::unknown) return Try::failed;
  if (out.standsIn && before.state != State::nothing) {
    failed_ = std::make_error_code(std::errc::file_exists);
    return Try::failed;
  }
  if (before.state == State::held && before.stamp.hash == out.set.hash() && isWhole(before, out.set)) {
    share({out.set, out.set}, before.stamp, out.isStored);
    return Try::stored;
  }
  if (out.joiner != nullptr) fetchHeld(deadline);
  if (view_.state == State::unknown) return Try::failed;
  if (view_.state == State::held && view_.stamp != before.stamp) return Try::raced;
  const Prepared prepared = prepare(out);
  if (view_.state == State::held && prepared.stored.hash() == view_.stamp.hash) {
    share(prepared, view_.stamp, out.isStored);
    return Try::stored;
  }
  return store(prepared, out, before, deadline);
}

// What this home shares is what it changed, on the base: names of dictionaries that are not on this disk stay in it.
SetDelivery::Prepared SetDelivery::prepare(const OutgoingSet& out) const {
  const Prepared asItIs{out.set, out.set};
  if (out.joiner == nullptr || view_.state != State::held) return asItIs;
  const Array& theirs = *view_.held();
  const Array& mine = out.set.styles;
  const auto joined = [&](const Array& base) -> Prepared {
    EncodedSet shared(out.joiner->join(base, mine, base, true).styles);
    if (&base == &theirs) return {shared, shared};
    JoinedStyles all = out.joiner->join(base, mine, theirs, true);
    if (all.hasLosses) out.joiner->keep(theirs, files_);
    return {EncodedSet(std::move(all.styles)), std::move(shared)};
  };
  switch (partingOf(view_, out.lastUpdate, out.set.hash())) {
    case Parting::fromHeld: return joined(theirs);
    case Parting::fromBase: return joined(arrivedAt(view_, view_.base->set.styles, *out.joiner));
    case Parting::fromMine: return joined(arrivedAt(view_, mine, *out.joiner));
    case Parting::fromSeed: return joined(arrivedAt(view_, out.joiner->seed(files_), *out.joiner));
    case Parting::wentBack:
    case Parting::unknown: out.joiner->keep(theirs, files_);
  }
  return asItIs;
}

SetDelivery::Try SetDelivery::store(const Prepared& prepared, const OutgoingSet& out,
                                    const StyleResource::Front& before, const Deadline& deadline) {
  // At the end of counting all sets have one revision, and another hash is newer.
  const SetStamp stamp = prepared.stored.payload.stamp(std::min(greatest_ + 1, lastRevision));
  const std::string bytes = prepared.stored.payload.bytes(stamp.revision);
  // Where the home cannot remember it, sets are joined from an older base, and more of them counts as changed.
  if (out.isStored) static_cast<void>(base_.promise({stamp, prepared.shared}));
  const StyleResource::Storing storing = resource_.store(bytes, before, deadline);
  failed_ = resource_.cause();
  if (storing == StyleResource::Storing::failed) return Try::failed;
  if (storing == StyleResource::Storing::raced) return Try::raced;
  const StyleResource::Front after = readFront(deadline);
  if (after.state == State::unknown) return Try::failed;
  if (after.stamp != stamp || !isWhole(after, prepared.stored)) return Try::raced;
  share(prepared, stamp, out.isStored);
  return Try::stored;
}

void SetDelivery::share(const Prepared& prepared, const SetStamp& shown, bool isStored) {
  view_.stamp = shown;
  view_.state = State::held;
  view_.styles = std::make_shared<const Array>(prepared.stored.styles);
  if (isStored) settle({shown, prepared.shared});
}

void SetDelivery::settle(const SharedBase& base) {
  static_cast<void>(base_.keep(base));
  lookUpBase();
}

}  // namespace tarvo
