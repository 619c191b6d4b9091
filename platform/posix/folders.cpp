// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/folders.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "platform/posix/descriptor.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

bool isFolder(const std::string& path) {
  struct stat status{};
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// base: the open folder that holds the name; path: the whole one, for who is told of a failure.
Result<> removeAt(int base, const std::string& name, const std::string& path);

// refused: why it could not be removed as a file.
Result<> removeContent(int base, const std::string& name, const std::string& path, int refused) {
  const Descriptor folder = openFolder(base, name, O_NOFOLLOW);
  const auto names = folder ? namesIn(folder.get()) : std::nullopt;
  if (!folder && (errno == ENOTDIR || errno == ELOOP)) errno = refused;  // no folder: the first answer holds
  if (!names) return systemFailure(path, Attempt::remove);
  for (const std::string& inner : *names) {
    if (Result<> removed = removeAt(folder.get(), inner, joinPath(path, inner)); !removed) return removed;
  }
  return {};
}

Result<> removeAt(int base, const std::string& name, const std::string& path) {
  // Most names are files: a folder is only looked for where the system says that this is none.
  if (::unlinkat(base, name.c_str(), 0) == 0) return {};
  const int refused = errno;
  if (refused != EISDIR && refused != EPERM) return systemFailure(path, Attempt::remove);
  if (Result<> emptied = removeContent(base, name, path, refused); !emptied) return emptied;
  if (::unlinkat(base, name.c_str(), AT_REMOVEDIR) == 0) return {};
  return systemFailure(path, Attempt::remove);
}

// The mode is given to the folder that was made, not to what may have taken its name since.
Result<> makeOne(const DiskPath& path, mode_t mode) {
  const Descriptor above = openFolder(AT_FDCWD, path.folder().text());
  const std::string name = path.name();
  if (above && ::mkdirat(above.get(), name.c_str(), 0700) == 0) {
    const Descriptor made = openFolder(above.get(), name, O_NOFOLLOW);
    if (made && ::fchmod(made.get(), mode) == 0) return {};
  }
  return systemFailure(path.text(), Attempt::makeFolder);
}

}  // namespace

Result<> makeFolders(const DiskPath& path) {
  if (isFolder(path.text())) return {};
  const DiskPath above = path.folder();
  if (above.empty() || above == path) return Failure{path.text(), Attempt::makeFolder, Reason::noPath};
  if (Result<> made = makeFolders(above); !made) return made;
  Result<> made = makeOne(path, 0777);
  if (made || made.error().cause != std::errc::file_exists) return made;
  if (isFolder(path.text())) return {};
  return Failure{path.text(), Attempt::makeFolder, std::make_error_code(std::errc::not_a_directory)};
}

Result<> makePrivateFolder(const DiskPath& path) { return makeOne(path, 0700); }

Result<> moveFile(const DiskPath& from, const DiskPath& to) {
  const char *source = from.text().c_str(), *target = to.text().c_str();
  if (::renameat2(AT_FDCWD, source, AT_FDCWD, target, RENAME_NOREPLACE) == 0) return {};
  // Some disks can only replace.
  struct stat status{};
  const bool mayReplace = errno == EINVAL && ::lstat(target, &status) != 0 && errno == ENOENT;
  if (mayReplace && ::rename(source, target) == 0) return {};
  return systemFailure(from.text(), Attempt::copy);
}

Result<> removeTree(const DiskPath& path) { return removeAt(AT_FDCWD, path.text(), path.text()); }

}  // namespace tarvo
