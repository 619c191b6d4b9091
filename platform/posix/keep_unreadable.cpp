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

bool isSameFile(const std::string& path, const struct stat& status) {
  struct stat other{};
  return ::lstat(path.c_str(), &other) == 0 && other.st_dev == status.st_dev && other.st_ino == status.st_ino;
}

bool isTaken(const Result<>& kept) { return !kept && kept.error().cause == std::errc::file_exists; }

Result<> keepAs(const std::string& path, const std::string& kept) {
  if (::linkat(AT_FDCWD, path.c_str(), AT_FDCWD, kept.c_str(), AT_SYMLINK_FOLLOW) == 0) return {};
  if (errno == EEXIST) return systemFailure(kept, Attempt::keep);
  Result<> copied = copyFile(path, kept);
  if (!copied) return Failure{copied.error().path, Attempt::keep, copied.error().cause};
  return {};
}

Result<> replaceKept(const std::string& path, const std::string& kept) {
  const std::string name = temporaryName();
  if (name.empty()) return systemFailure(path, Attempt::keep);
  const std::string temporary = joinPath(deletingLastPathComponent(kept), name);
  if (Result<> done = keepAs(path, temporary); !done) return done;
  if (::rename(temporary.c_str(), kept.c_str()) == 0) return {};
  Failure failure = systemFailure(kept, Attempt::keep);
  ::unlink(temporary.c_str());
  return failure;
}

}  // namespace

Result<> keepUnreadableFile(const std::string& path) {
  struct stat status{};
  if (::stat(path.c_str(), &status) != 0) return systemFailure(path, Attempt::keep);
  if (!S_ISREG(status.st_mode)) return Failure{path, Attempt::keep, Reason::noRegularFile};
  std::string kept;
  for (int number = 1; number <= maximumKept; ++number) {
    kept = path + ".unreadable";
    if (number > 1) kept.append(1, '.').append(std::to_string(number));
    if (isSameFile(kept, status)) return {};
    Result<> done = keepAs(path, kept);
    if (!isTaken(done)) return done;
  }
  return replaceKept(path, kept);
}

}  // namespace tarvo
