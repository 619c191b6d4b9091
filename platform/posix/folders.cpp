// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/folders.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/posix/descriptor.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

bool isFolder(const std::string& path) {
  struct stat status{};
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool removeAt(int base, const std::string& name);

bool removeContent(int base, const std::string& name) {
  const Descriptor folder = openFolder(base, name, O_NOFOLLOW);
  const auto names = folder ? namesIn(folder.get()) : std::nullopt;
  return names && std::all_of(names->begin(), names->end(),
                              [&](const std::string& inner) { return removeAt(folder.get(), inner); });
}

bool removeAt(int base, const std::string& name) {
  // Most names are files: a folder is only looked for where the system says that this is none.
  if (::unlinkat(base, name.c_str(), 0) == 0) return true;
  if (errno != EISDIR && errno != EPERM) return false;
  return removeContent(base, name) && ::unlinkat(base, name.c_str(), AT_REMOVEDIR) == 0;
}

}  // namespace

bool makeFolders(const std::string& path) {
  if (isFolder(path)) return true;
  const std::string above = deletingLastPathComponent(path);
  if (above.empty() || above == path || !makeFolders(above)) return false;
  if (::mkdir(path.c_str(), 0777) != 0) return errno == EEXIST && isFolder(path);
  return ::chmod(path.c_str(), 0777) == 0;
}

bool removeTree(const std::string& path) { return removeAt(AT_FDCWD, path); }

}  // namespace tarvo
