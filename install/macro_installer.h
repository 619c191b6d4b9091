// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "install/addin_entry.h"

namespace tarvo {

class Bundle;
class FileService;

// Puts the macro file of an Office application into its install folder and takes it out again.
// The folder belongs to the application and is never made here; nothing there is ever overwritten.
class MacroInstaller {
 public:
  MacroInstaller(FileService& files, const Bundle& bundle) : files_(files), bundle_(bundle) {}
  // False: no such macro among the resources, no folder, something of that name there already, or the copy failed.
  bool installOfficeMacro(const AddinEntry& entry);
  // True also when the macro is not there.
  bool unInstallOfficeMacro(const AddinEntry& entry);

 private:
  FileService& files_;
  const Bundle& bundle_;
};

}  // namespace tarvo
