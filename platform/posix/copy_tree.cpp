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

// A name in an open folder, or AT_FDCWD with a whole path.
struct Place {
  int folder;
  const std::string& name;
};

constexpr mode_t permissions = 0777;

bool copyBytes(int from, int to) {
  constexpr std::size_t atOnce = std::size_t{1} << 30;
  // The system copies by itself where it can; wherever that ends, the plain loop goes on from there.
  while (::copy_file_range(from, nullptr, to, nullptr, atOnce, 0) > 0) {
  }
  std::array<char, std::size_t{64} * 1024> buffer{};
  while (true) {
    const ssize_t count = ::read(from, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return count == 0;
    if (!writeAll(to, std::string_view(buffer.data(), static_cast<std::size_t>(count)))) return false;
  }
}

bool copyRegular(Place from, Place to, int openFlags) {
  const Descriptor source(::openat(from.folder, from.name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | openFlags));
  struct stat status{};
  if (!source || ::fstat(source.get(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  Descriptor target(::openat(to.folder, to.name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  if (!target) return false;
  bool copied = copyBytes(source.get(), target.get());
  copyAttributes(source.get(), target.get());
  copied = copied && ::fchmod(target.get(), status.st_mode & permissions) == 0 && target.close();
  if (!copied) ::unlinkat(to.folder, to.name.c_str(), 0);
  return copied;
}

bool copyLink(Place from, Place to) {
  std::string content(PATH_MAX, '\0');
  const ssize_t size = ::readlinkat(from.folder, from.name.c_str(), content.data(), content.size());
  if (size <= 0 || static_cast<std::size_t>(size) == content.size()) return false;
  content.resize(static_cast<std::size_t>(size));
  return ::symlinkat(content.c_str(), to.folder, to.name.c_str()) == 0;
}

bool copyAny(Place from, Place to);

bool copyFolder(Place from, Place to, mode_t mode) {
  const Descriptor source = openFolder(from.folder, from.name, O_NOFOLLOW);
  auto names = source ? namesIn(source.get()) : std::nullopt;
  if (!names || ::mkdirat(to.folder, to.name.c_str(), 0700) != 0) return false;
  const Descriptor target = openFolder(to.folder, to.name, O_NOFOLLOW);
  if (!target) return false;
  std::sort(names->begin(), names->end());
  const bool copied = std::all_of(names->begin(), names->end(), [&](const std::string& name) {
    return copyAny({source.get(), name}, {target.get(), name});
  });
  copyAttributes(source.get(), target.get());
  return ::fchmod(target.get(), mode & permissions) == 0 && copied;
}

bool copyAny(Place from, Place to) {
  struct stat status{};
  if (::fstatat(from.folder, from.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return false;
  if (S_ISREG(status.st_mode)) return copyRegular(from, to, O_NOFOLLOW);
  if (S_ISLNK(status.st_mode)) return copyLink(from, to);
  return S_ISDIR(status.st_mode) && copyFolder(from, to, status.st_mode);
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

bool copyTree(const std::string& from, const std::string& to) {
  if (isFolderItself(from) && isInside(to, from)) return false;
  return copyAny({AT_FDCWD, from}, {AT_FDCWD, to});
}

bool copyFile(const std::string& from, const std::string& to) {
  return copyRegular({AT_FDCWD, from}, {AT_FDCWD, to}, 0);
}

}  // namespace tarvo
