// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/tool_list_file.h"

#include <algorithm>
#include <utility>

#include "platform/services/common_module.h"
#include "platform/services/file_service.h"
#include "platform/services/texts.h"
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

bool isEqual(const PropertyList* stored, const PropertyList& value) { return stored != nullptr && *stored == value; }

void appendLine(std::string& text, std::string_view key, std::string_view value) {
  text.append(key).append("=").append(value).append("\r\n");
}

}  // namespace

std::string officeToolTitle(std::size_t tool, const Texts& texts) {
  return texts.localized("OfficeTool." + std::to_string(tool));
}

ToolListFile::ToolListFile(FileService& files, UserDefaults& defaults, const TarvoCommonModule& module, DiskPath path)
    : files_(files), defaults_(defaults), module_(module), path_(std::move(path)) {}

std::optional<std::size_t> ToolListFile::rememberedTool() const {
  const std::string* stored = defaults_.string("Tool_Path");
  if (stored == nullptr) return 0;
  const auto* found = std::ranges::find(gAppCreatorArray, *stored);
  if (found == gAppCreatorArray.end()) return std::nullopt;
  return static_cast<std::size_t>(found - gAppCreatorArray.begin());
}

std::string ToolListFile::textFor(std::size_t tool, const std::string& title) const {
  const std::string_view creator = gAppCreatorArray[tool];
  const ToolAction action = actionOf(creator);
  std::string text;
  appendLine(text, "Server_Path", serverCreator);
  appendLine(text, "Cache_Path", module_.unixPathToClassic(module_.preferencesWordhavenCache()));
  appendLine(text, "Setting_Path", styleManagerCreator);
  appendLine(text, "Helpfile_Path", module_.unixPathToClassic(ProductPath(addInHelpPath)));
  appendLine(text, "Tool_Name", title);
  appendLine(text, "Tool_Path", creator);
  appendLine(text, "Tool_Action", std::to_string(action.number));
  appendLine(text, "Tool_Parameter", trimmed(action.parameter));
  return shiftJisFromUtf8(text);
}

Result<> ToolListFile::write(std::size_t tool, const std::string& title) {
  const ToolAction action = actionOf(gAppCreatorArray[tool]);
  defaults_.set("Tool_Name", title);
  defaults_.set("Tool_Path", gAppCreatorArray[tool]);
  defaults_.set("Tool_Action", action.number);
  defaults_.set("Tool_Parameter", action.parameter);
  defaults_.synchronize();
  return files_.write(path_, textFor(tool, title));
}

bool ToolListFile::isFor(std::size_t tool, const std::string& title) const {
  const ToolAction action = actionOf(gAppCreatorArray[tool]);
  const bool isRemembered = isEqual(defaults_.find("Tool_Name"), title) &&
                            isEqual(defaults_.find("Tool_Path"), gAppCreatorArray[tool]) &&
                            isEqual(defaults_.find("Tool_Action"), action.number) &&
                            isEqual(defaults_.find("Tool_Parameter"), action.parameter);
  const Result<std::string> bytes = files_.read(path_);
  return isRemembered && bytes && *bytes == textFor(tool, title);
}

}  // namespace tarvo
