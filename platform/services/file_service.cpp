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

Result<> onTheDisk(const Result<Replaced>& replaced) {
  if (!replaced) return replaced.error();
  const std::optional<Failure>& unsynced = replaced->unsynced;
  return unsynced ? Result<>(*unsynced) : Result<>();
}

Result<> FileService::write(const DiskPath& path, std::string_view bytes) {
  return onTheDisk(replace(path, bytes, {}));
}

Result<> FileService::writePrivate(const DiskPath& path, std::string_view bytes) {
  return onTheDisk(replace(path, bytes, {.isPrivate = true}));
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
