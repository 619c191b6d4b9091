// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/folders.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/posix/descriptor.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

bool isFolder(const std::string& path) {
  struct stat status{};
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// Folders of others are removed as far as their modes allow; those that this process made have no say.
enum class Whose { anybodys, own };

// base: the open folder that holds the name; path: the whole one, for who is told of a failure.
Result<> removeAt(int base, const std::string& name, const std::string& path, Whose whose);

// refused: why it could not be removed as a file.
Result<> removeContent(int base, const std::string& name, const std::string& path, int refused, Whose whose) {
  const int opened = whose == Whose::own ? ::fchmodat(base, name.c_str(), 0700, AT_SYMLINK_NOFOLLOW) : 0;
  (void)opened;  // what stays closed fails below
  const Descriptor folder = openFolder(base, name, O_NOFOLLOW);
  const auto names = folder ? namesIn(folder.get()) : std::nullopt;
  if (!folder && (errno == ENOTDIR || errno == ELOOP)) errno = refused;  // no folder: the first answer holds
  if (!names) return systemFailure(path, Attempt::remove);
  for (const std::string& inner : *names) {
    if (Result<> removed = removeAt(folder.get(), inner, joinPath(path, inner), whose); !removed) return removed;
  }
  return {};
}

Result<> removeAt(int base, const std::string& name, const std::string& path, Whose whose) {
  // Most names are files: a folder is only looked for where the system says that this is none.
  if (::unlinkat(base, name.c_str(), 0) == 0) return {};
  const int refused = errno;
  if (refused != EISDIR && refused != EPERM) return systemFailure(path, Attempt::remove);
  if (Result<> emptied = removeContent(base, name, path, refused, whose); !emptied) return emptied;
  if (::unlinkat(base, name.c_str(), AT_REMOVEDIR) == 0) return {};
  return systemFailure(path, Attempt::remove);
}

// The mode is given to the folder that was made, not to what may have taken its name since.
Result<> makeOne(const DiskPath& path, mode_t mode) {
  const Descriptor above = openFolder(AT_FDCWD, path.folder().text());
  const std::string name = path.name();
  if (!above || ::mkdirat(above.get(), name.c_str(), 0700) != 0) return systemFailure(path.text(), Attempt::makeFolder);
  const Descriptor made = openFolder(above.get(), name, O_NOFOLLOW);
  if (made && ::fchmod(made.get(), mode) == 0 && syncFolder(made.get()) && syncFolder(above.get())) return {};
  Failure failure = systemFailure(path.text(), Attempt::makeFolder);
  ::unlinkat(above.get(), name.c_str(), AT_REMOVEDIR);  // what others put into it meanwhile keeps it
  return failure;
}

// For disks that can only replace. A second name refuses just as well what is there; folders, and files on disks
// without second names, are left to a look before.
bool renameAfterALook(int fromFolder, const char* from, int toFolder, const char* to) {
  if (::linkat(fromFolder, from, toFolder, to, 0) == 0) {
    if (::unlinkat(fromFolder, from, 0) == 0) return true;
    const int cause = errno;
    ::unlinkat(toFolder, to, 0);
    errno = cause;
    return false;
  }
  struct stat status{};
  if (errno == EEXIST) return false;
  if (::fstatat(toFolder, to, &status, AT_SYMLINK_NOFOLLOW) == 0) {
    errno = EEXIST;
    return false;
  }
  return errno == ENOENT && ::renameat(fromFolder, from, toFolder, to) == 0;
}

}  // namespace

Result<> makeFolders(const DiskPath& path, const DiskPath& privateBelow) {
  if (isFolder(path.text())) return {};
  const DiskPath above = path.folder();
  if (above.empty() || above == path) return Failure{path.text(), Attempt::makeFolder, Reason::noPath};
  if (Result<> made = makeFolders(above, privateBelow); !made) return made;
  Result<> made = makeOne(path, modeOfNewFolder(path, privateBelow));
  if (made || made.error().cause != std::errc::file_exists) return made;
  if (isFolder(path.text())) return {};
  return Failure{path.text(), Attempt::makeFolder, std::make_error_code(std::errc::not_a_directory)};
}

unsigned modeOfNewFolder(const DiskPath& path, const DiskPath& privateBelow) {
  return !privateBelow.empty() && path.isIn(privateBelow) ? 0700 : 0777;
}

std::string withoutLinks(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
  return real ? real.get() : "";
}

Result<unsigned> modeForOthers(const DiskPath& folder) {
  const DiskPath real(withoutLinks(folder.text()));
  if (real.empty()) return systemFailure(folder.text(), Attempt::look);
  unsigned mode = 0;
  for (DiskPath path = real;; path = path.folder()) {
    struct stat status{};
    if (::lstat(path.text().c_str(), &status) != 0) return systemFailure(path.text(), Attempt::look);
    if ((status.st_mode & S_IXOTH) == 0 || !S_ISDIR(status.st_mode)) return 0U;
    if (path == real) mode = status.st_mode & S_IRWXO;
    if (path.text() == "/") return mode;
  }
}

Result<> makePrivateFolder(const DiskPath& path) { return makeOne(path, 0700); }

bool renameWithoutReplacing(int fromFolder, const std::string& name, int toFolder, const std::string& newName) {
  const char *from = name.c_str(), *to = newName.c_str();
  if (::renameat2(fromFolder, from, toFolder, to, RENAME_NOREPLACE) == 0) return true;
  const bool isUnknown = errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
  return isUnknown && renameAfterALook(fromFolder, from, toFolder, to);
}

Result<> moveFile(const DiskPath& from, const DiskPath& to) {
  if (renameWithoutReplacing(AT_FDCWD, from.text(), AT_FDCWD, to.text())) return {};
  return systemFailure(from.text(), Attempt::copy);
}

Result<> removeTree(const DiskPath& path) { return removeAt(AT_FDCWD, path.text(), path.text(), Whose::anybodys); }

void removeOwn(int folder, const std::string& name) {
  const Result<> removed = removeAt(folder, name, name, Whose::own);
  (void)removed;  // whoever gives it up tells of what went wrong before
}

}  // namespace tarvo
