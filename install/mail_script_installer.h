// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <vector>

#include "install/addin_entry.h"
#include "platform/services/result.h"

namespace tarvo {

class Bundle;
class FileService;

// Where scripts for mail programs go, below the home: Apple Mail's before and since system version 10.4, and those of
// the others in the shipped list of add-ins.
inline constexpr std::array<const char*, 4> mailScriptFolders{
    "Library/Scripts/Mail Scripts", "Library/Scripts/Applications/Mail",
    "Documents/Microsoft User Data/Outlook Script Menu Items",
    "Documents/Microsoft User Data/Entourage Script Menu Items"};

// The folders of scripts that mail programs offer.
// Duty: make the mail program's script folder; copy a folder of scripts there, item by item, and remove it again.
// Not: deciding which programs there are. A link in the place of the script folder is never followed: what it leads to
// is not the product's.
class MailScriptInstaller {
 public:
  MailScriptInstaller(FileService& files, const Bundle& bundle, const Locations& locations)
      : files_(files), bundle_(bundle), locations_(locations) {}

  // Makes Apple Mail's script folder for the running system version.
  Result<> createMailScriptFolder();
  DiskPath mailScriptFolder() const;  // that folder
  // Whether anything, a file too, may be where the record's scripts go: programs without it are not listed. A folder
  // that cannot be looked at counts as there.
  bool isMailScriptFolder(const AddinEntry& entry) const;
  // Stops at the first item that cannot be copied, also because something of its name is there; what was copied stays.
  // Fails then, and for scripts that are missing or empty, which leaves an empty folder. A folder that is new stands
  // there only with all that will be in it.
  Result<> installMailScript(const AddinEntry& entry);
  Result<> unInstallMailScript(const AddinEntry& entry);
  // Removes what lies in the folder, up to the first failure, then the folder itself if that left it empty. Whether
  // that is done, and on the disk, is the answer; the failure is the first one.
  Result<> unInstallScript(const DiskPath& folder);

 private:
  Result<std::vector<DiskPath>> scriptsIn(const DiskPath& source) const;
  Result<> addScripts(const std::vector<DiskPath>& scripts, const DiskPath& folder);
  Result<> removeScripts(const DiskPath& folder, const std::vector<std::string>& names);
  FileService& files_;
  const Bundle& bundle_;
  const Locations& locations_;
};

}  // namespace tarvo
