// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/macro_installer.h"

#include "platform/services/file_service.h"

namespace tarvo {

Result<> MacroInstaller::installOfficeMacro(const AddinEntry& entry) {
  const Result<DiskPath> source = addinSource(entry, bundle_);
  if (!source) return source.error();
  return files_.copy(*source, placesOf(entry, locations_, files_).item);
}

Result<> MacroInstaller::unInstallOfficeMacro(const AddinEntry& entry) {
  const DiskPath path = placesOf(entry, locations_, files_).item;
  const Result<FileService::Kind> there = files_.kind(path);
  if (!there) return there.error();
  if (*there == FileService::Kind::absent) return {};
  Result<> removed = files_.remove(path);
  if (removed) return files_.sync(path.folder());
  if (files_.isAbsent(path)) return {};
  return removed;
}

}  // namespace tarvo
