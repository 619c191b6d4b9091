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
  return isStandIn() && outcome_ && !*outcome_ && outcome_->error().cause == std::errc::file_exists;
}

void EngineRegistration::registerStyles(const StyleSet* styles) {
  if (engine_.checkConnectionWithCurl()) {
    send(styles);
  } else if (styles != nullptr) {
    outcome_ = whyUnreached(engine_);
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
  outcome_ = engine_.didRegister();
  if (outcome_->has_value()) endStandIn();
  keep(stamp);
}

void EngineRegistration::keep(const std::string& stamp) {
  defaults_.set(lastUpdate, stamp);
  defaults_.synchronize();
}

}  // namespace tarvo
