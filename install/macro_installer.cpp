// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/macro_installer.h"

#include <optional>

#include "platform/services/file_service.h"

namespace tarvo {

bool MacroInstaller::installOfficeMacro(const AddinEntry& entry) {
  const std::optional<std::string> source = addinSource(entry, bundle_);
  return source && files_.copy(*source, installedItemPath(entry));
}

bool MacroInstaller::unInstallOfficeMacro(const AddinEntry& entry) {
  const std::string path = installedItemPath(entry);
  return !files_.exists(path) || files_.remove(path) || !files_.exists(path);
}

}  // namespace tarvo
