// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/divider.h"

#include "platform/services/texts.h"
#include "style/style_keys.h"

namespace tarvo {

bool isDivider(const Dictionary& record, const Texts& texts) {
  const std::string* name = record.string(keyNameName);
  return texts.localized(keyNameSeparator) == (name != nullptr ? *name : std::string());
}

}  // namespace tarvo
