// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/keep_beside.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/copy_tree.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/final_links.h"

namespace tarvo {
namespace {

constexpr int maximumKept = 5;

bool isSameFile(const DiskPath& path, const struct stat& status) {
  struct stat other{};
  return ::lstat(path.text().c_str(), &other) == 0 && other.st_dev == status.st_dev && other.st_ino == status.st_ino;
}

bool isTaken(const Result<>& kept) { return !kept && kept.error().cause == std::errc::file_exists; }

Result<> keepAs(const DiskPath& path, const DiskPath& kept) {
  if (::linkat(AT_FDCWD, path.text().c_str(), AT_FDCWD, kept.text().c_str(), 0) == 0) return {};
  if (errno == EEXIST) return systemFailure(kept.text(), Attempt::keep);
  Result<> copied = copyFile(path, kept);
  if (!copied) return Failure{copied.error().path, Attempt::keep, copied.error().cause};
  return {};
}

Result<> replaceKept(const DiskPath& path, const DiskPath& kept) {
  const std::string name = temporaryName();
  if (name.empty()) return systemFailure(path.text(), Attempt::keep);
  const DiskPath temporary = kept.folder() / name;
  if (Result<> done = keepAs(path, temporary); !done) return done;
  if (::rename(temporary.text().c_str(), kept.text().c_str()) == 0) return {};
  Failure failure = systemFailure(kept.text(), Attempt::keep);
  ::unlink(temporary.text().c_str());
  return failure;
}

Result<DiskPath> synced(const Result<>& done, const DiskPath& kept) {
  if (!done) return done.error();
  const Descriptor folder = openFolder(AT_FDCWD, kept.folder().text());
  if (!folder || !syncFileIn(folder.get(), kept.name())) return systemFailure(kept.text(), Attempt::keep);
  return kept;
}

}  // namespace

Result<DiskPath> keepBeside(const DiskPath& path, const std::string& ending) {
  const Result<FinalTarget> file = followFinalLinks(path, Attempt::keep);
  if (!file) return file.error();
  if (!file->present)
    return Failure{path.text(), Attempt::keep, std::make_error_code(std::errc::no_such_file_or_directory)};
  struct stat status{};
  if (::fstat(file->present.get(), &status) != 0) return systemFailure(path.text(), Attempt::keep);
  if (!S_ISREG(status.st_mode)) return Failure{path.text(), Attempt::keep, Reason::noRegularFile};
  DiskPath kept;
  for (int number = 1; number <= maximumKept; ++number) {
    kept = path + ending;
    if (number > 1) kept = kept + "." + std::to_string(number);
    if (isSameFile(kept, status)) return synced({}, kept);
    const Result<> done = keepAs(file->path, kept);
    if (!isTaken(done)) return synced(done, kept);
  }
  return synced(replaceKept(file->path, kept), kept);
}

}  // namespace tarvo
