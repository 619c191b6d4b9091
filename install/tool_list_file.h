// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/services/result.h"
#include "platform/text/paths.h"

// The tool-list file, from which the installed Office macros learn which tool a button starts.
// Eight lines "key=value" with CR LF, Shift_JIS without a byte-order mark, written whole.
namespace tarvo {

class FileService;
class TarvoCommonModule;
class Texts;
class UserDefaults;

// Creator codes of the tools that the Office pane offers, in the order of its pop-up.
inline constexpr std::array<std::string_view, 7> gAppCreatorArray{"tMG8", "tTX8", "tUD8", "tTM8",
                                                                  "tTL8", "tNP8", "tQB8"};

// What the tool at that place of the codes is called.
std::string officeToolTitle(std::size_t tool, const Texts& texts);

// Duty: remember a tool in the settings, write the file for it. Not: letting the user choose (office_tool_choice.h).
class ToolListFile {
 public:
  // path: of the file.
  ToolListFile(FileService& files, UserDefaults& defaults, const TarvoCommonModule& module, DiskPath path);
  const DiskPath& path() const { return path_; }
  // The place of the tool stored under "Tool_Path": the first when nothing is stored, none for an unknown code.
  std::optional<std::size_t> rememberedTool() const;
  // Stores the tool in the settings, then writes the file. Settings that could not be stored are their own to tell.
  Result<> write(std::size_t tool, const std::string& title);
  // Whether file and settings say just that already.
  bool isFor(std::size_t tool, const std::string& title) const;

 private:
  std::string textFor(std::size_t tool, const std::string& title) const;
  FileService& files_;
  UserDefaults& defaults_;
  const TarvoCommonModule& module_;
  DiskPath path_;
};

}  // namespace tarvo
