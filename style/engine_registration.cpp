// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/engine_registration.h"

#include <algorithm>
#include <utility>

#include "platform/services/user_defaults.h"
#include "style/style_file.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {

bool areStyles(const Array& styles) {
  return std::all_of(styles.begin(), styles.end(),
                     [](const PropertyList& style) { return style.dictionary() != nullptr && fitsStyleFile(style); });
}

}  // namespace

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
  engine_.sendRegistStyle(*styles, stamp);
  outcome_ = engine_.didRegister();
  keep(stamp);
}

void EngineRegistration::keep(const std::string& stamp) {
  defaults_.set(lastUpdate, stamp);
  defaults_.synchronize();
}

}  // namespace tarvo
