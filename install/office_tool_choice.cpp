// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/office_tool_choice.h"

#include <utility>

#include "install/tool_list_file.h"

namespace tarvo {

void OfficeToolChoice::restoreTool() {
  if (const auto tool = file_.rememberedTool()) outlets_.officeToolPopup.selectItemAtIndex(static_cast<int>(*tool));
}

void OfficeToolChoice::writeOffieTool() {
  const int index = outlets_.officeToolPopup.indexOfSelectedItem();
  if (!std::in_range<std::size_t>(index) || static_cast<std::size_t>(index) >= gAppCreatorArray.size()) return;
  const Result<> written = file_.write(static_cast<std::size_t>(index), outlets_.officeToolPopup.titleOfSelectedItem());
  if (!written && didFail) didFail(written.error());  // the macros start the former tool
}

}  // namespace tarvo
