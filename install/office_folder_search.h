// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "install/addin_entry.h"
#include "platform/services/result.h"

// The search for Office 2011 in a folder, for an Office that lies elsewhere than usual.
// Duty: look at the applications in it, add a row for each that a shipped record of that edition knows. Not: asking for
// the folder (office_folder_choice.h); looking deeper than one level; rows once added are AddinLists'.
namespace tarvo {

class AddinLists;
class FileService;
class Locations;
class MailScriptInstaller;
class ScriptRunner;
class TarvoCommonModule;

class OfficeFolderSearch {
 public:
  struct Services {
    FileService& files;
    const Locations& locations;
    ScriptRunner& scripts;
    const TarvoCommonModule& module;
  };
  OfficeFolderSearch(Services services, AddinLists& lists, const MailScriptInstaller& mailScripts)
      : services_(services), lists_(lists), mailScripts_(mailScripts) {}

  struct Found {
    std::vector<std::string> added;  // names, as the tables show them
    // What was passed over because it could not be read, so that nobody knows whether it is an Office.
    std::vector<Failure> unread;
  };
  // Fails for a folder that cannot be listed.
  Result<Found> searchFolder(const DiskPath& folder);
  // The whole number before the first dot of an application's version, as the desktop's script service tells it; 0 when
  // it tells nothing.
  int getApplicationVer(const DiskPath& path);
  // Adds a row for the application at path when the shipped record fits it. signature: the bundle's four characters.
  // True: the record fits, though for a mail program without a script folder nothing was added.
  bool getAddOfficeDictionary(const AddinEntry& shipped, int version, const DiskPath& path,
                              const std::string& signature, const DiskPath& folder);

 private:
  // False for an application outside the root where the root holds one at the same path: the row would mean that one,
  // and its box install there. Also for a path that the settings cannot hold: it would be gone with the next start.
  bool canBeStored(const DiskPath& path) const;
  bool addOfficeRow(const AddinEntry& shipped, const DiskPath& path, const DiskPath& folder);
  bool addMailRow(const AddinEntry& shipped, const DiskPath& path);
  AddinEntry rowFor(const AddinEntry& shipped, const DiskPath& path, const DiskPath& base) const;
  Services services_;
  AddinLists& lists_;
  const MailScriptInstaller& mailScripts_;
};

}  // namespace tarvo
