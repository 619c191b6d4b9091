// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "install/addin_entry.h"
#include "platform/services/result.h"

namespace tarvo {

class AddinLists;
class FileService;
class MailScriptInstaller;
class Panels;
class Texts;

// Removes mail scripts that an earlier generation of the product left, and says so, or tells why not.
// That generation is recognised by a folder whose name, or path, is a text of its own for each program; what is removed
// is the folder of the record's scripts.
class OldScripts {
 public:
  struct Services {
    FileService& files;
    Panels& panels;
    const Texts& texts;
  };
  // home: the user's.
  OldScripts(Services services, AddinLists& lists, MailScriptInstaller& mailScripts, DiskPath home);
  // Once a launch. The mail rows' states are computed anew in any case.
  void OldscriptUninstall();
  std::function<void(const Failure& failure)> didFail;  // what stays, and why

 private:
  bool removeFor(const AddinEntry& shipped, const char* oldFolderKey);
  void tell(const std::string& removed);
  Services services_;
  AddinLists& lists_;
  MailScriptInstaller& mailScripts_;
  DiskPath home_;
};

}  // namespace tarvo
