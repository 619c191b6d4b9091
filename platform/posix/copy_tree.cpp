// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/copy_tree.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <memory>

#include "platform/posix/attributes.h"
#include "platform/posix/descriptor.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

// A name in an open folder, or AT_FDCWD with a whole path; and the whole path, for who is told of a failure.
struct Place {
  int folder;
  std::string name, path;
};

constexpr mode_t permissions = 0777;

// The source could not be taken, or the target not be made; errno says why.
Failure unread(const Place& from) { return systemFailure(from.path, Attempt::copy); }
Failure unmade(const Place& to) {
  if (errno == ENOENT) return systemFailure(deletingLastPathComponent(to.path), Attempt::write);  // no folder for it
  return systemFailure(to.path, Attempt::create);
}

Result<> copyBytes(const Place& from, const Descriptor& source, const Place& to, const Descriptor& target) {
  constexpr std::size_t atOnce = std::size_t{1} << 30;
  // The system copies by itself where it can; wherever that ends, the plain loop goes on from there.
  while (::copy_file_range(source.get(), nullptr, target.get(), nullptr, atOnce, 0) > 0) {
  }
  std::array<char, std::size_t{64} * 1024> buffer{};
  while (true) {
    const ssize_t count = ::read(source.get(), buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return unread(from);
    if (count == 0) return {};
    if (!writeAll(target.get(), std::string_view(buffer.data(), static_cast<std::size_t>(count)))) return unmade(to);
  }
}

Result<> copyRegular(const Place& from, const Place& to, int openFlags) {
  const Descriptor source(::openat(from.folder, from.name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | openFlags));
  struct stat status{};
  if (!source || ::fstat(source.get(), &status) != 0) return unread(from);
  if (!S_ISREG(status.st_mode)) return Failure{from.path, Attempt::copy, Reason::noRegularFile};
  Descriptor target(::openat(to.folder, to.name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  if (!target) return unmade(to);
  Result<> copied = copyBytes(from, source, to, target);
  copyAttributes(source.get(), target.get());
  if (copied && (::fchmod(target.get(), status.st_mode & permissions) != 0 || !target.close())) copied = unmade(to);
  if (!copied) ::unlinkat(to.folder, to.name.c_str(), 0);
  return copied;
}

Result<> copyLink(const Place& from, const Place& to) {
  std::string content(PATH_MAX, '\0');
  const ssize_t size = ::readlinkat(from.folder, from.name.c_str(), content.data(), content.size());
  if (size < 0) return unread(from);
  if (static_cast<std::size_t>(size) == content.size()) {
    return Failure{from.path, Attempt::copy, std::make_error_code(std::errc::filename_too_long)};
  }
  content.resize(static_cast<std::size_t>(size));
  if (::symlinkat(content.c_str(), to.folder, to.name.c_str()) == 0) return {};
  return unmade(to);
}

Result<> copyAny(const Place& from, const Place& to);

Result<> copyContent(const Place& from, const Descriptor& source, const Place& to, const Descriptor& target) {
  auto names = namesIn(source.get());
  if (!names) return unread(from);
  std::sort(names->begin(), names->end());
  for (const std::string& name : *names) {
    Result<> copied =
        copyAny({source.get(), name, joinPath(from.path, name)}, {target.get(), name, joinPath(to.path, name)});
    if (!copied) return copied;
  }
  return {};
}

Result<> copyFolder(const Place& from, const Place& to, mode_t mode) {
  const Descriptor source = openFolder(from.folder, from.name, O_NOFOLLOW);
  if (!source) return unread(from);
  if (::mkdirat(to.folder, to.name.c_str(), 0700) != 0) return unmade(to);
  const Descriptor target = openFolder(to.folder, to.name, O_NOFOLLOW);
  if (!target) return unmade(to);
  Result<> copied = copyContent(from, source, to, target);
  copyAttributes(source.get(), target.get());
  if (::fchmod(target.get(), mode & permissions) != 0 && copied) return unmade(to);
  return copied;
}

Result<> copyAny(const Place& from, const Place& to) {
  struct stat status{};
  if (::fstatat(from.folder, from.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return unread(from);
  if (S_ISREG(status.st_mode)) return copyRegular(from, to, O_NOFOLLOW);
  if (S_ISLNK(status.st_mode)) return copyLink(from, to);
  if (S_ISDIR(status.st_mode)) return copyFolder(from, to, status.st_mode);
  return Failure{from.path, Attempt::copy, Reason::noRegularFile};
}

std::string withoutLinks(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
  return real ? real.get() : "";
}

bool isInside(const std::string& path, const std::string& folder) {
  const std::string outer = withoutLinks(folder);
  return !outer.empty() && isBelow(withoutLinks(deletingLastPathComponent(path)), outer);
}

bool isFolderItself(const std::string& path) {
  struct stat status{};
  return ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

Result<> copyTree(const DiskPath& from, const DiskPath& to) {
  const std::string &source = from.text(), &target = to.text();
  if (isFolderItself(source) && isInside(target, source)) return Failure{source, Attempt::copy, Reason::intoItself};
  return copyAny({AT_FDCWD, source, source}, {AT_FDCWD, target, target});
}

Result<> copyFile(const DiskPath& from, const DiskPath& to) {
  return copyRegular({AT_FDCWD, from.text(), from.text()}, {AT_FDCWD, to.text(), to.text()}, 0);
}

}  // namespace tarvo
