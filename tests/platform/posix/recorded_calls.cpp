// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/platform/posix/recorded_calls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace tarvo::test {
namespace {

RecordedCalls* recording = nullptr;  // of the main thread, on which these tests run

bool allows(const char* name, bool onlyGroup = false) {
  const int cause = recording != nullptr ? recording->note(name, onlyGroup) : 0;
  if (cause != 0) errno = cause;
  return cause == 0;
}

bool isFolder(int file) {
  struct stat status{};
  return ::fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

RecordedCalls::RecordedCalls() { recording = this; }
RecordedCalls::~RecordedCalls() { recording = nullptr; }

void RecordedCalls::failAt(int call, int cause) {
  calls_ = 0;
  failsAt_ = call;
  cause_ = cause;
}

int RecordedCalls::note(const std::string& name, bool onlyGroup) {
  if (names_.empty() || names_.back() != name) names_.push_back(name);
  if (calls_++ == failsAt_) {
    hasFailed_ = true;
    return cause_;
  }
  if (name == "owner" && (onlyGroup ? refusesGroup_ : refusesOwner_)) return EPERM;
  const auto failing = failing_.find(name);
  return failing != failing_.end() ? failing->second : 0;
}

}  // namespace tarvo::test

// The test program's own functions of these names stand before those of the C library.
extern "C" {

int fsync(int file) {
  if (!tarvo::test::allows(tarvo::test::isFolder(file) ? "sync folder" : "sync file")) return -1;
  return static_cast<int>(::syscall(SYS_fsync, file));
}

ssize_t write(int file, const void* bytes, size_t size) {
  if (!tarvo::test::allows("write")) return -1;
  return ::syscall(SYS_write, file, bytes, size);
}

int renameat(int from, const char* name, int to, const char* other) noexcept {
  if (!tarvo::test::allows("rename")) return -1;
  return static_cast<int>(::syscall(SYS_renameat2, from, name, to, other, 0));
}

int renameat2(int from, const char* name, int to, const char* other, unsigned flags) noexcept {
  if (!tarvo::test::allows(flags == 0 ? "rename" : "rename if free")) return -1;
  return static_cast<int>(::syscall(SYS_renameat2, from, name, to, other, flags));
}

int linkat(int from, const char* name, int to, const char* other, int flags) noexcept {
  if (!tarvo::test::allows("link")) return -1;
  return static_cast<int>(::syscall(SYS_linkat, from, name, to, other, flags));
}

int symlinkat(const char* content, int folder, const char* name) noexcept {
  if (!tarvo::test::allows("symbolic link")) return -1;
  return static_cast<int>(::syscall(SYS_symlinkat, content, folder, name));
}

int mkdirat(int folder, const char* name, mode_t mode) noexcept {
  if (!tarvo::test::allows("folder")) return -1;
  return static_cast<int>(::syscall(SYS_mkdirat, folder, name, mode));
}

int fsetxattr(int file, const char* name, const void* value, size_t size, int flags) noexcept {
  if (!tarvo::test::allows("attribute")) return -1;
  return static_cast<int>(::syscall(SYS_fsetxattr, file, name, value, size, flags));
}

ssize_t copy_file_range(int from, off64_t* fromAt, int to, off64_t* toAt, size_t size, unsigned flags) {
  if (!tarvo::test::allows("copy")) return -1;
  return ::syscall(SYS_copy_file_range, from, fromAt, to, toAt, size, flags);
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
  if (!tarvo::test::allows("owner", owner == static_cast<uid_t>(-1))) return -1;
  return static_cast<int>(::syscall(SYS_fchown, file, owner, group));
}

int fchmod(int file, mode_t mode) noexcept {
  if (!tarvo::test::allows("mode")) return -1;
  return static_cast<int>(::syscall(SYS_fchmod, file, mode));
}
}
