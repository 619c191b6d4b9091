// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/mail_script_installer.h"

#include "install/directory_creation.h"
#include "platform/system_version.h"

namespace tarvo {

bool MailScriptInstaller::createMailScriptFolder() {
  const bool isOldSystem = systemVersion(files_) < 104;
  return createDirectoryFromPath(
      files_, isOldSystem ? "Library/Scripts/Mail Scripts" : "Library/Scripts/Applications/Mail", home_);
}

}  // namespace tarvo
