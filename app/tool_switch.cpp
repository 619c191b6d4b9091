// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/tool_switch.h"

#include "platform/services/user_defaults.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {

Result<> switchTool(Tool tool, StyleStore& store, UserDefaults& defaults, const Texts& texts,
                    const std::function<Result<>(int index)>& chooseStyle) {
  store.setCurrentID(toolId(tool, texts));
  if (store.getSelection() != nullptr) {
    if (Result<> chosen = chooseStyle(store.selectedStyle()); !chosen) return chosen;
  }
  defaults.set(SMSelectedTag, store.currentID());
  defaults.synchronize();
  return {};
}

}  // namespace tarvo
