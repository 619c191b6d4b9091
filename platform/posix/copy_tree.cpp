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

#include "platform/posix/attributes.h"
#include "platform/posix/beside.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/finder_info.h"
#include "platform/posix/folders.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

using Codes = std::optional<FinderCodes>;

// A name in an open folder, or AT_FDCWD with a whole path; and the whole path, for who is told of a failure.
struct Place {
  int folder;
  std::string name, path;
};

constexpr mode_t permissions = 0777;

// The source could not be taken; errno says why.
Failure unread(const Place& from) { return systemFailure(from.path, Attempt::copy); }
Failure unmade(const Place& to) { return tarvo::unmade(to.path); }

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

Result<> copyRegular(const Place& from, const Place& to, int openFlags, const Codes& codes) {
  const Descriptor source(::openat(from.folder, from.name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | openFlags));
  struct stat status{};
  if (!source || ::fstat(source.get(), &status) != 0) return unread(from);
  if (!S_ISREG(status.st_mode)) return Failure{from.path, Attempt::copy, Reason::noRegularFile};
  Descriptor target(::openat(to.folder, to.name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
  if (!target) return unmade(to);
  if (Result<> copied = copyBytes(from, source, to, target); !copied) return copied;
  copyAttributes(source.get(), target.get());
  if (codes && !giveFinderCodes(target.get(), *codes)) return unmade(to);
  const bool isDone = ::fchmod(target.get(), status.st_mode & permissions) == 0 && ::fsync(target.get()) == 0;
  if (!isDone || !target.close()) return unmade(to);
  return {};
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

Result<> copyAny(const Place& from, const Place& to, const Codes& codes = {});

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

// A folder has its mode when all is in it, and then goes to the disk.
Result<> finishFolder(const Descriptor& folder, const Place& place, mode_t mode) {
  if (::fchmod(folder.get(), mode & permissions) == 0 && syncFolder(folder.get())) return {};
  return unmade(place);
}

Descriptor makeFolder(const Place& place) {
  if (::mkdirat(place.folder, place.name.c_str(), 0700) != 0) return Descriptor();
  return openFolder(place.folder, place.name, O_NOFOLLOW);
}

Result<> copyFolder(const Place& from, const Place& to, mode_t mode) {
  const Descriptor source = openFolder(from.folder, from.name, O_NOFOLLOW);
  if (!source) return unread(from);
  const Descriptor target = makeFolder(to);
  if (!target) return unmade(to);
  if (Result<> copied = copyContent(from, source, to, target); !copied) return copied;
  copyAttributes(source.get(), target.get());
  return finishFolder(target, to, mode);
}

Result<> copyAny(const Place& from, const Place& to, const Codes& codes) {
  struct stat status{};
  if (::fstatat(from.folder, from.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return unread(from);
  if (S_ISREG(status.st_mode)) return copyRegular(from, to, O_NOFOLLOW, codes);
  if (S_ISLNK(status.st_mode)) return copyLink(from, to);
  if (S_ISDIR(status.st_mode)) return copyFolder(from, to, status.st_mode);
  return Failure{from.path, Attempt::copy, Reason::noRegularFile};
}

Place whole(const std::string& path) { return {AT_FDCWD, path, path}; }

// Builds beside the path and gives it its name. make: gets the place to build at.
template <class Make>
Result<> makeAt(const std::string& path, const Make& make) {
  Beside beside(path);
  if (Result<> open = beside.open(); !open) return open;
  if (Result<> made = make(Place{beside.folder(), beside.temporary(), path}); !made) return made;
  return beside.place();
}

bool isInside(const std::string& path, const std::string& folder) {
  const std::string outer = withoutLinks(folder);
  return !outer.empty() && isBelow(withoutLinks(deletingLastPathComponent(path)), outer);
}

}  // namespace

Result<> copyTree(const DiskPath& from, const DiskPath& to, const std::optional<FinderCodes>& codes) {
  const std::string &source = from.text(), &target = to.text();
  struct stat status{};
  if (::lstat(source.c_str(), &status) != 0) return unread(whole(source));
  if (S_ISDIR(status.st_mode) && isInside(target, source)) return Failure{source, Attempt::copy, Reason::intoItself};
  return makeAt(target, [&](const Place& place) { return copyAny(whole(source), place, codes); });
}

Result<> copyFile(const DiskPath& from, const DiskPath& to) {
  return makeAt(to.text(), [&](const Place& place) { return copyRegular(whole(from.text()), place, 0, {}); });
}

Result<> copyIntoNewFolder(const std::vector<DiskPath>& items, const DiskPath& folder, unsigned mode) {
  Result<> copied;
  const Result<> placed = makeAt(folder.text(), [&](const Place& place) -> Result<> {
    const Descriptor made = makeFolder(place);
    if (!made) return unmade(place);
    for (const DiskPath& item : items) {
      const Place to{made.get(), item.name(), joinPath(place.path, item.name())};
      copied = copyAny(whole(item.text()), to);
      if (copied) continue;
      removeOwn(made.get(), item.name());
      break;
    }
    return finishFolder(made, place, mode);
  });
  return placed ? copied : placed;
}

}  // namespace tarvo
