// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/tool_list_command.h"

#include <algorithm>

#include "app/product.h"
#include "app/user_files.h"
#include "console/verbs/refusal.h"
#include "console/verbs/style_reading.h"
#include "install/tool_list_file.h"
#include "platform/services/common_module.h"
#include "platform/services/file_service.h"
#include "platform/services/user_defaults.h"

namespace tarvo {

namespace {

// A code that nobody knows counts as the first tool, which the pop-up shows then.
std::size_t toolFor(const ToolListFile& file, const std::string& code) {
  const auto* tool = std::ranges::find(gAppCreatorArray, code);
  if (tool != gAppCreatorArray.end()) return static_cast<std::size_t>(tool - gAppCreatorArray.begin());
  return file.rememberedTool().value_or(0);
}

// Both, or why one of them was not stored. The folder is one that the first start makes.
Result<> write(ToolListFile& file, const UserDefaults& defaults, std::size_t tool, Product& product) {
  if (Result<> made = product.files().makeFolder(file.path().folder()); !made) return made;
  if (Result<> written = file.write(tool, officeToolTitle(tool, product.texts())); !written) return written;
  if (const std::optional<Failure>& unwritten = defaults.unwritten()) return *unwritten;
  return {};
}

}  // namespace

ExitStatus ToolListCommand::run(Console& console) {
  if (!tool_.empty() && std::ranges::find(gAppCreatorArray, tool_) == gAppCreatorArray.end()) {
    const std::vector<std::string> codes(gAppCreatorArray.begin(), gAppCreatorArray.end());
    return tell(console, UsageError{UsageError::Kind::wrongValue, tool_, codes, "", "TOOL"});
  }
  if (const std::optional<Problem> failure = takeLock(console)) return tell(console, *failure);
  Product& product = console.product;
  UserDefaults defaults(product.files(), userDefaultsPath(product.locations()));
  noteUnread(console, defaults);
  noteUnreadStyles(console);
  const TarvoCommonModule module(product.paths());
  ToolListFile file(product.files(), defaults, module, toolListPath(product.locations()));
  const std::size_t tool = toolFor(file, tool_);
  const bool isSo = file.isFor(tool, officeToolTitle(tool, product.texts()));
  if (!isSo) {
    if (const Result<> done = write(file, defaults, tool, product); !done) return tell(console, done.error());
  }
  say(console, {isSo ? std::vector<std::string>() : std::vector{file.path().text()}, std::nullopt});
  return ExitStatus::done;
}

Result<> writeToolList(Product& product, UserDefaults& defaults) {
  const TarvoCommonModule module(product.paths());
  ToolListFile file(product.files(), defaults, module, toolListPath(product.locations()));
  return write(file, defaults, toolFor(file, ""), product);
}

}  // namespace tarvo
