// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "install/addin_entry.h"
#include "platform/services/result.h"

namespace tarvo {

class Bundle;
class FileService;

// Puts the macro file of an Office application into its install folder and takes it out again.
// The folder belongs to the application and is never made here; nothing there is ever overwritten.
class MacroInstaller {
 public:
  MacroInstaller(FileService& files, const Bundle& bundle, const Locations& locations)
      : files_(files), bundle_(bundle), locations_(locations) {}
  // Fails without such a macro among the resources, without the folder, over something of that name, and when the copy
  // fails.
  Result<> installOfficeMacro(const AddinEntry& entry);
  // Done also when the macro is not there. One that cannot be looked at is not taken for removed, nor is one that a
  // power cut might bring back.
  Result<> unInstallOfficeMacro(const AddinEntry& entry);

 private:
  FileService& files_;
  const Bundle& bundle_;
  const Locations& locations_;
};

}  // namespace tarvo
