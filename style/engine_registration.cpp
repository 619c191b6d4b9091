// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/engine_registration.h"

#include "platform/user_defaults.h"
#include "style/style_keys.h"

namespace tarvo {

void EngineRegistration::registerStyles(const StyleSet* styles) {
  if (!engine_.checkConnectionWithCurl() || styles == nullptr) return;
  std::string stamp;
  engine_.sendRegistStyle(*styles, stamp);
  defaults_.set(lastUpdate, stamp);
  defaults_.synchronize();
}

}  // namespace tarvo
