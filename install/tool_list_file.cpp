// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/tool_list_file.h"

#include <algorithm>
#include <utility>

#include "platform/services/common_module.h"
#include "platform/services/file_service.h"
#include "platform/services/user_defaults.h"
#include "platform/text/text_encoding.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

constexpr std::string_view serverCreator = "tTS8", styleManagerCreator = "tSM8";
constexpr const char* addInHelpPath = "/Applications/TarvoEiwa.localized/Contents/AddInHelp/index.htm";

// What a macro asks the tool to do once it runs.
struct ToolAction {
  int number = 0;
  std::string_view parameter = " ";
};

ToolAction actionOf(std::string_view creator) {
  if (creator == "tTX8" || creator == "tMG8") return {1, "fileTranslate"};
  if (creator == "tUD8") return {2, "doSearch"};
  return {};
}

void appendLine(std::string& text, std::string_view key, std::string_view value) {
  text.append(key).append("=").append(value).append("\r\n");
}

}  // namespace

ToolListFile::ToolListFile(FileService& files, UserDefaults& defaults, const TarvoCommonModule& module,
                           ToolListOutlets& outlets, DiskPath path)
    : files_(files),
      defaults_(defaults),
      module_(module),
      outlets_(outlets),
      path_(std::move(path)),
      written_(Failure{path_.text(), Attempt::write, Reason::nothingChosen}) {}

void ToolListFile::restoreTool() {
  const std::string* stored = defaults_.string("Tool_Path");
  const auto found = stored != nullptr ? std::find(gAppCreatorArray.begin(), gAppCreatorArray.end(), *stored)
                                       : gAppCreatorArray.begin();
  if (found == gAppCreatorArray.end()) return;
  outlets_.officeToolPopup.selectItemAtIndex(static_cast<int>(found - gAppCreatorArray.begin()));
}

void ToolListFile::writeOffieTool() {
  const int index = outlets_.officeToolPopup.indexOfSelectedItem();
  if (!std::in_range<std::size_t>(index) || static_cast<std::size_t>(index) >= gAppCreatorArray.size()) return;
  const std::string title = outlets_.officeToolPopup.titleOfSelectedItem();
  const std::string_view creator = gAppCreatorArray[static_cast<std::size_t>(index)];
  const ToolAction action = actionOf(creator);

  defaults_.set("Tool_Name", title);
  defaults_.set("Tool_Path", creator);
  defaults_.set("Tool_Action", action.number);
  defaults_.set("Tool_Parameter", action.parameter);
  defaults_.synchronize();

  std::string text;
  appendLine(text, "Server_Path", serverCreator);
  appendLine(text, "Cache_Path", module_.unixPathToClassic(module_.preferencesWordhavenCache()));
  appendLine(text, "Setting_Path", styleManagerCreator);
  appendLine(text, "Helpfile_Path", module_.unixPathToClassic(ProductPath(addInHelpPath)));
  appendLine(text, "Tool_Name", title);
  appendLine(text, "Tool_Path", creator);
  appendLine(text, "Tool_Action", std::to_string(action.number));
  appendLine(text, "Tool_Parameter", trimmed(action.parameter));
  written_ = files_.write(path_, shiftJisFromUtf8(text));
}

}  // namespace tarvo
