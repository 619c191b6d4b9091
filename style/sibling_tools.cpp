// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/sibling_tools.h"

#include "platform/services/texts.h"

namespace tarvo {

std::string toolId(Tool tool, const Texts& texts) { return texts.localized(rowOf(tool).key); }

std::vector<std::string> toolIds(const Texts& texts) {
  std::vector<std::string> ids;
  ids.reserve(siblingTools.size());
  for (const SiblingTool& tool : siblingTools) ids.push_back(texts.localized(tool.key));
  return ids;
}

}  // namespace tarvo
