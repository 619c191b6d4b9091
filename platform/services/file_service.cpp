// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/file_service.h"

#include <algorithm>

#include "platform/text/text_rules.h"

namespace tarvo {

bool FileService::isThere(const DiskPath& path) const {
  const Result<Kind> found = kind(path);
  return found && *found != Kind::absent;
}

Result<> FileService::write(const DiskPath& path, std::string_view bytes) {
  const Result<Replaced> replaced = replace(path, bytes, {});
  if (!replaced) return replaced.error();
  if (replaced->unsynced) return *replaced->unsynced;
  return {};
}

bool FileService::isAbsent(const DiskPath& path) const { return kind(path) == Kind::absent; }

bool existsIgnoringCase(const FileService& files, const DiskPath& path) {
  if (!files.isAbsent(path)) return true;
  const DiskPath folder = path.folder();
  const std::string name = path.name();
  // Where the folder cannot be listed the exact name alone counts.
  const Result<std::vector<std::string>> names = files.list(folder);
  return names && std::any_of(names->begin(), names->end(), [&](const std::string& other) {
           return equalIgnoringCase(other, name) && !files.isAbsent(folder / other);
         });
}

}  // namespace tarvo
