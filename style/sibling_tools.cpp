// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/sibling_tools.h"

#include <algorithm>

#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"
#include "style/style_keys.h"

namespace tarvo {

std::string toolId(Tool tool, const Texts& texts) { return texts.localized(rowOf(tool).key); }

std::vector<std::string> toolIds(const Texts& texts) {
  std::vector<std::string> ids;
  ids.reserve(siblingTools.size());
  for (const SiblingTool& tool : siblingTools) ids.push_back(texts.localized(tool.key));
  return ids;
}

Tool rememberedTool(const UserDefaults& defaults, const Texts& texts) {
  const std::string* stored = defaults.string(SMSelectedTag);
  const auto tool =
      stored != nullptr
          ? std::ranges::find(siblingTools, *stored, [&](const SiblingTool& each) { return texts.localized(each.key); })
          : siblingTools.end();
  return tool != siblingTools.end() ? tool->tool : Tool::manager;
}

}  // namespace tarvo
