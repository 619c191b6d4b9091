// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/keep_former.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/posix/folders.h"
#include "platform/posix/keep_beside.h"
#include "platform/services/kept_copies.h"

namespace tarvo {

namespace {

constexpr std::size_t largestCopy = std::size_t{1} << 30;

// The folder is for its owner alone: other users of the machine have no business in what somebody wrote earlier.
Descriptor openPlace(const DiskPath& folder, const DiskPath& privateBelow) {
  Descriptor open = openFolder(AT_FDCWD, folder.text(), O_NOFOLLOW);
  if (open || errno != ENOENT) return open;
  if (!makeFolders(folder.folder(), privateBelow)) return Descriptor();
  if (!makePrivateFolder(folder)) return Descriptor();
  return openFolder(AT_FDCWD, folder.text(), O_NOFOLLOW);
}

Descriptor openRegular(int folder, const std::string& name, struct stat& status) {
  Descriptor file(::openat(folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file || ::fstat(file.get(), &status) != 0) return Descriptor();
  errno = EINVAL;
  return S_ISREG(status.st_mode) ? std::move(file) : Descriptor();
}

// It takes its name when it is whole: who is killed in between leaves a temporary file.
bool copyInto(int from, int place, const std::string& name, std::size_t size) {
  const std::string temporary = temporaryName();
  const auto bytes = temporary.empty() ? std::nullopt : readAll(from, size, largestCopy);
  if (!bytes) return false;
  const Descriptor copy(::openat(place, temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
  if (!copy) return false;
  if (writeAll(copy.get(), *bytes) && renameWithoutReplacing(place, temporary, place, name)) return true;
  const int cause = errno;
  ::unlinkat(place, temporary.c_str(), 0);
  errno = cause;
  return false;
}

// errno says why not, also where something else than a file has taken the name.
bool look(int folder, const std::string& name, struct stat& status) {
  if (::fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return false;
  errno = EINVAL;
  return S_ISREG(status.st_mode);
}

}  // namespace

FileStamp stampOf(const struct stat& status) {
  constexpr std::int64_t nanoseconds = 1'000'000'000;
  return {.device = status.st_dev,
          .inode = status.st_ino,
          .size = static_cast<std::uint64_t>(status.st_size),
          .modified = status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec};
}

// What the link leads to is what will go, whoever put it there a moment ago. Its name is right already unless that was
// after the look: whoever lists the folder believes what names say of the bytes, also after a crash right here.
bool FormerFile::link(int folder, const std::string& name) {
  struct stat status{};
  const bool isExpected = look(folder, name, status) && keeping_.expected == stampOf(status);
  const std::string& provisional = isExpected && !keeping_.name.empty() ? keeping_.name : keeping_.foreignName;
  if (!place_ || ::linkat(folder, name.c_str(), place_.get(), provisional.c_str(), 0) != 0) return false;
  outcome_.kept = provisional;
  return true;
}

bool FormerFile::nameLink(const std::string& wanted) {
  if (outcome_.kept == wanted) return true;
  if (::renameat(place_.get(), outcome_.kept.c_str(), place_.get(), wanted.c_str()) != 0) {
    const int cause = errno;
    drop();
    errno = cause;
    return false;
  }
  outcome_.kept = wanted;
  return true;
}

bool FormerFile::copy(int folder, const std::string& name, const std::string& wanted) {
  if (!outcome_.wasForeign && !keeping_.mayCopy) return true;
  struct stat status{};
  const Descriptor former = openRegular(folder, name, status);
  if (!former || !copyInto(former.get(), place_.get(), wanted, static_cast<std::size_t>(status.st_size))) return false;
  outcome_.kept = wanted;
  return true;
}

bool FormerFile::keepInPlace(int folder, const std::string& name, const std::string& wanted) {
  const bool isThere = outcome_.kept.empty() ? copy(folder, name, wanted) : nameLink(wanted);
  if (!isThere) return false;
  const bool isQuick = !outcome_.wasForeign && keeping_.durability == Durability::quick;
  return isQuick || outcome_.kept.empty() || syncFileIn(place_.get(), outcome_.kept);
}

Result<> FormerFile::keep(int folder, const std::string& name, const std::string& path) {
  place_ = openPlace(keeping_.folder, privateBelow_);
  std::optional<Failure> failure;
  if (!place_) failure = systemFailure(keeping_.folder.text(), Attempt::keep);
  const bool isLinked = link(folder, name);
  struct stat status{};
  if (!look(isLinked ? place_.get() : folder, isLinked ? outcome_.kept : name, status)) {
    failure = systemFailure(path, Attempt::keep);
    drop();
    return *failure;
  }
  outcome_.wasForeign = keeping_.expected != stampOf(status);
  const std::string& wanted = outcome_.wasForeign ? keeping_.foreignName : keeping_.name;
  if (wanted.empty()) {
    drop();
    return {};
  }
  if (!failure && keepInPlace(folder, name, wanted)) return {};
  if (!failure) failure = systemFailure(path, Attempt::keep);
  if (outcome_.wasForeign) {
    if (const Result<DiskPath> beside = keepBeside(DiskPath(path), kept_copies::foreign))
      outcome_.beside = beside->text();
  }
  if (mustLast() && outcome_.beside.empty()) {
    drop();
    return *failure;
  }
  outcome_.unkept = std::move(failure);
  return {};
}

void FormerFile::drop() {
  if (outcome_.kept.empty()) return;
  ::unlinkat(place_.get(), outcome_.kept.c_str(), 0);
  outcome_.kept.clear();
}

}  // namespace tarvo
