// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/controls/controls.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"

// The tool-list file, from which the installed Office macros learn which tool a button starts.
// Eight lines "key=value" with CR LF, Shift_JIS without a byte-order mark, written whole.
namespace tarvo {

class FileService;
class TarvoCommonModule;
class UserDefaults;

// Creator codes of the tools that the Office pane offers, in the order of its pop-up.
inline constexpr std::array<std::string_view, 7> gAppCreatorArray{"tMG8", "tTX8", "tUD8", "tTM8",
                                                                  "tTL8", "tNP8", "tQB8"};

struct ToolListOutlets : Outlets {
  PopUpButton officeToolPopup{*this, "officeToolPopup"};
  ToolListOutlets() : Outlets("manager") {}
};

class ToolListFile {
 public:
  // path: of the file.
  ToolListFile(FileService& files, UserDefaults& defaults, const TarvoCommonModule& module, ToolListOutlets& outlets,
               DiskPath path);
  const DiskPath& path() const { return path_; }
  // Selects the tool stored under "Tool_Path": the first one when nothing is stored; an unknown code leaves the pop-up
  // alone.
  void restoreTool();
  // Stores the chosen tool in the settings, then writes the file. Nothing without a chosen tool.
  void writeOffieTool();
  void changeOfficeTool() { writeOffieTool(); }
  bool isWritten() const { return written_.has_value(); }  // how the last write ended, for who may tell it
  const Result<>& written() const { return written_; }

 private:
  FileService& files_;
  UserDefaults& defaults_;
  const TarvoCommonModule& module_;
  ToolListOutlets& outlets_;
  DiskPath path_;
  Result<> written_;
};

}  // namespace tarvo
