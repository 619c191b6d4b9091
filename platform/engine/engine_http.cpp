// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/engine_http.h"

#include <algorithm>
#include <utility>

namespace tarvo {
namespace {

using State = StyleResource::State;

// Why nothing can be read of it.
std::error_code causeOf(const ServiceView& view) {
  if (view.state == State::damaged) return Reason::damaged;
  return view.state == State::nothing ? Reason::absentThere : view.cause;
}

}  // namespace

EngineHttp::EngineHttp(HttpPlace place, FileService& files, const DiskPath& basePath, HttpTimes times, Now now)
    : files_(files),
      place_(std::move(place)),
      basePath_(basePath),
      times_(times),
      now_(std::move(now)),
      courier_(makeCourier()) {}

EngineHttp::~EngineHttp() { attach(nullptr); }

std::unique_ptr<StyleCourier> EngineHttp::makeCourier() {
  return std::make_unique<StyleCourier>(
      std::make_unique<SetDelivery>(place_, files_, BaseFile(files_, basePath_, place_.address)), times_,
      [this] { hear(); });
}

void EngineHttp::attach(EngineClient* client) {
  if (client == nullptr) courier_->stop();
  const std::lock_guard lock(attaching_);
  client_ = client;
  if (client != nullptr && courier_->isStopped()) courier_ = makeCourier();
}

// In the thread of the courier.
void EngineHttp::hear() {
  const std::lock_guard lock(attaching_);
  if (client_ != nullptr) client_->didHear();
}

bool EngineHttp::isAsking() const { return !courier_->known().hasAnswered; }

bool EngineHttp::isSending() const {
  const Knowledge known = courier_->known();
  return known.isWaiting && !known.delivered;
}

bool EngineHttp::checkConnectionWithCurl() {
  const Knowledge known = courier_->known();
  const bool isSilent = !known.contact && known.contacted && now_() - *known.contacted < times_.silence;
  couldReach_ = isSilent ? known.contact : Result<>();
  if (isSilent) sendPresent();
  return !isSilent;
}

void EngineHttp::send(EncodedSet set) {
  OutgoingSet out{.set = std::move(set), .standsIn = standsIn_};
  if (client_ != nullptr) {
    out.lastUpdate = SetStamp::parse(client_->lastUpdate());
    out.isStored = client_->areStored();
    out.joiner = client_->joiner();
  }
  courier_->deliver(std::move(out));
}

void EngineHttp::sendPresent() {
  const std::optional<StyleSet> styles = client_ != nullptr ? client_->presentStyles() : std::nullopt;
  if (styles) send(EncodedSet(styles->records, StylePayload(*styles)));
}

// At the end of counting all sets have one revision, and another hash is newer.
std::uint64_t EngineHttp::nextRevision() const { return std::min(courier_->known().greatest + 1, lastRevision); }

void EngineHttp::sendRegistStyle(const StyleSet& styles, std::string& updateString) {
  EncodedSet set(styles.records, StylePayload(styles));
  if (client_ != nullptr) courier_->noteRevision(SetStamp::parse(client_->lastUpdate()).revision);
  updateString = set.payload.stamp(nextRevision()).text();
  send(std::move(set));
}

Result<> EngineHttp::didRegister() const {
  const Knowledge known = courier_->known();
  if (known.delivered) return *known.delivered;
  return known.isWaiting ? Result<>(failure(Attempt::store, Reason::onItsWay)) : Result<>();
}

bool EngineHttp::checkStyle() {
  const Knowledge known = courier_->known();
  return !known.hasAnswered || known.view.state != State::nothing;
}

bool EngineHttp::requestStyle(Array& styles, std::string& localUpdate) {
  const SetStamp local = SetStamp::parse(localUpdate);
  courier_->noteRevision(local.revision);
  places_.clear();
  taken_.reset();
  const bool hasAnswered = !isAsking();
  const ServiceView view = this->view();
  couldRead_ = failure(Attempt::fetch, hasAnswered ? causeOf(view) : std::error_code(Reason::notAsked));
  if (!hasAnswered || view.state != State::held || view.held() == nullptr) return false;
  couldRead_ = {};
  const std::optional<StyleSet> present = client_ != nullptr ? client_->presentStyles() : std::nullopt;
  std::optional<Array> newer;
  if (standsIn_ || !present) {
    if (view.stamp.isNewerThan(local)) newer = *view.held();
  } else {
    newer = newerThan(*present, view, local);
  }
  if (!newer) return false;
  const EncodedSet taken(std::move(*newer));
  const bool isTheirs = taken.hash() == view.stamp.hash;
  localUpdate = (isTheirs ? view.stamp : taken.payload.stamp(nextRevision())).text();
  styles = taken.styles;
  taken_ = Taken{{view.stamp, EncodedSet(*view.held())}, !isTheirs};
  return true;
}

// What the styles here are to become; nothing when they stay.
std::optional<Array> EngineHttp::newerThan(const StyleSet& present, const ServiceView& view, const SetStamp& local) {
  const StylePayload payload(present);
  const Array &mine = present.records, &theirs = *view.held();
  if (payload.hash() == view.stamp.hash) {
    if (client_->areStored()) settle({view.stamp, EncodedSet(mine, payload)});
    return std::nullopt;
  }
  const std::shared_ptr<StyleJoiner> joiner = client_->joiner();
  switch (partingOf(view, local, payload.hash())) {
    case Parting::fromHeld:
      // Names of dictionaries that this machine lacks, and what a start inserts, are no edits.
      if (joiner->join(theirs, mine, theirs, false).styles != theirs) sendPresent();
      return std::nullopt;
    case Parting::fromBase: return joined(mine, view, view.base->set.styles, *joiner);
    case Parting::fromMine: return joined(mine, view, mine, *joiner);
    case Parting::fromSeed: return joined(mine, view, joiner->seed(files_), *joiner);
    case Parting::wentBack: break;
    case Parting::unknown:
      if (view.stamp.revision > local.revision) return theirs;
  }
  sendPresent();
  return std::nullopt;
}

std::optional<Array> EngineHttp::joined(const Array& mine, const ServiceView& view, const Array& base,
                                        StyleJoiner& joiner) {
  const Array& theirs = *view.held();
  if (view.base == nullptr) settle({view.stamp, EncodedSet(base)});
  JoinedStyles all = joiner.join(arrivedAt(view, base, joiner), mine, theirs, false);
  const bool isNews = all.styles != mine && joiner.join(theirs, mine, theirs, false).styles != theirs;
  if (!isNews) {
    sendPresent();
    return std::nullopt;
  }
  if (all.hasLosses) joiner.keep(theirs, files_);
  places_ = std::move(all.placesOfMine);
  return std::move(all.styles);
}

// What was taken is where both part from now on; what it was joined with goes out.
void EngineHttp::didStoreStyles() {
  if (!taken_ || client_ == nullptr || !client_->areStored()) return;
  Taken taken = std::move(*std::exchange(taken_, std::nullopt));
  settle(std::move(taken.theirs));
  if (taken.isJoined) sendPresent();
}

void EngineHttp::settle(SharedBase base) {
  base_ = std::make_shared<const SharedBase>(base);
  courier_->settle(std::move(base));
}

// The thread has what was settled here before it does anything else.
ServiceView EngineHttp::view() const {
  const bool isSettling = courier_->isSettling();  // asked first: what is settled in between is in the view
  ServiceView view = courier_->known().view;
  if (isSettling) view.base = base_;
  return view;
}

// Whatever this home shared before is gone with its style file.
void EngineHttp::didSeedStyles(const Array& styles) {
  EncodedSet seed(styles);
  const SetStamp first = seed.payload.stamp(1);
  settle({first, std::move(seed)});
}

}  // namespace tarvo
