// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/temporaries.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <string>

#include "platform/posix/descriptor.h"
#include "platform/posix/folders.h"

namespace tarvo {

namespace {

void sweep(const DiskPath& path) {
  const Descriptor folder = openFolder(AT_FDCWD, path.text(), O_NOFOLLOW);
  const auto names = folder ? namesIn(folder.get()) : std::nullopt;
  if (!names) return;
  for (const std::string& name : *names) {
    struct stat status{};
    if (!isLeftBehind(name) || ::fstatat(folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) continue;
    if (status.st_uid != ::geteuid()) continue;
    if (S_ISREG(status.st_mode)) ::unlinkat(folder.get(), name.c_str(), 0);
    if (!S_ISDIR(status.st_mode)) continue;
    const Result<> removed = removeTree(path / name);
    (void)removed;  // the next start tries again
  }
}

// Whether the way from the home to a path in it leads over folders alone.
bool hasNoLinks(const DiskPath& home, const DiskPath& path) {
  const std::string rest = path.text().substr(std::min(home.text().size() + 1, path.text().size()));
  Descriptor folder = openFolder(AT_FDCWD, home.text());
  for (std::size_t start = 0; folder && start < rest.size();) {
    const std::size_t end = std::min(rest.find('/', start), rest.size());
    folder = openFolder(folder.get(), rest.substr(start, end - start), O_NOFOLLOW);
    start = end + 1;
  }
  return static_cast<bool>(folder);
}

}  // namespace

void sweepTemporaries(const DiskPath& home, const std::vector<DiskPath>& folders) {
  for (const DiskPath& folder : folders) {
    if (folder.isIn(home) && hasNoLinks(home, folder)) sweep(folder);
  }
}

}  // namespace tarvo
