// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/engine_registration.h"

#include <utility>

#include "platform/services/user_defaults.h"
#include "style/style_file.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {
constexpr const char* standsIn = "StylesStandIn";
}

void EngineRegistration::beginStandIn(std::function<bool()> mayStore) {
  if (!isStandIn()) defaults_.noteLater(standsIn, true, std::move(mayStore));
}

void EngineRegistration::endStandIn() { defaults_.forget(standsIn); }

bool EngineRegistration::isStandIn() const { return defaults_.find(standsIn) != nullptr; }

bool EngineRegistration::wasLeftAlone() const {
  const std::optional<Result<>> ended = outcome();
  return isStandIn() && ended && !*ended && ended->error().cause == std::errc::file_exists;
}

std::optional<Result<>> EngineRegistration::outcome() const {
  switch (handed_) {
    case Handed::nothing: return std::nullopt;
    case Handed::nowhere: return unreached_;
    case Handed::later: return engine_.isSending() ? unreached_ : engine_.didRegister();
    case Handed::over: break;
  }
  return engine_.didRegister();
}

// What stood in has become what the engine holds.
void EngineRegistration::settle() {
  const std::optional<Result<>> ended = outcome();
  if (ended && *ended) endStandIn();
}

void EngineRegistration::registerStyles(const StyleSet* styles) {
  if (engine_.checkConnectionWithCurl()) {
    send(styles);
  } else if (styles != nullptr) {
    unreached_ = whyUnreached(engine_);
    handed_ = engine_.isSending() ? Handed::later : Handed::nowhere;
  }
}

Result<std::optional<Array>> EngineRegistration::reconcile(const StyleSet* styles) {
  if (!engine_.checkStyle()) {
    send(styles);
    return std::optional<Array>();
  }
  const std::string* stored = defaults_.string(lastUpdate);
  std::string stamp = stored != nullptr ? *stored : std::string();
  Array newer;
  if (!engine_.requestStyle(newer, stamp)) {
    if (const Result<> read = engine_.couldRead(); !read) return read.error();
    return std::optional<Array>();
  }
  if (!areStyles(newer)) return Failure{"", Attempt::fetch, Reason::damaged};
  keep(stamp);
  return std::optional(std::move(newer));
}

void EngineRegistration::send(const StyleSet* styles) {
  if (styles == nullptr) return;
  std::string stamp;
  engine_.setStandIn(isStandIn());
  engine_.sendRegistStyle(*styles, stamp);
  handed_ = Handed::over;
  settle();
  keep(stamp);
}

void EngineRegistration::keep(const std::string& stamp) {
  defaults_.set(lastUpdate, stamp);
  defaults_.synchronize();
}

}  // namespace tarvo
