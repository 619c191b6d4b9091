// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/keep_unreadable.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/copy_tree.h"
#include "platform/posix/descriptor.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

constexpr int maximumKept = 5;

enum class Outcome { kept, taken, failed };

bool isSameFile(const std::string& path, const struct stat& status) {
  struct stat other{};
  return ::lstat(path.c_str(), &other) == 0 && other.st_dev == status.st_dev && other.st_ino == status.st_ino;
}

Outcome keepAs(const std::string& path, const std::string& kept) {
  if (::linkat(AT_FDCWD, path.c_str(), AT_FDCWD, kept.c_str(), AT_SYMLINK_FOLLOW) == 0) return Outcome::kept;
  if (errno == EEXIST) return Outcome::taken;
  if (copyFile(path, kept)) return Outcome::kept;
  struct stat status{};
  return ::lstat(kept.c_str(), &status) == 0 ? Outcome::taken : Outcome::failed;
}

bool replaceKept(const std::string& path, const std::string& kept) {
  const std::string name = temporaryName();
  const std::string temporary = joinPath(deletingLastPathComponent(kept), name);
  if (name.empty() || keepAs(path, temporary) != Outcome::kept) return false;
  if (::rename(temporary.c_str(), kept.c_str()) == 0) return true;
  ::unlink(temporary.c_str());
  return false;
}

}  // namespace

bool keepUnreadableFile(const std::string& path) {
  struct stat status{};
  if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  std::string kept;
  for (int number = 1; number <= maximumKept; ++number) {
    kept = path + ".unreadable";
    if (number > 1) kept.append(1, '.').append(std::to_string(number));
    if (isSameFile(kept, status)) return true;
    const Outcome outcome = keepAs(path, kept);
    if (outcome != Outcome::taken) return outcome == Outcome::kept;
  }
  return replaceKept(path, kept);
}

}  // namespace tarvo
