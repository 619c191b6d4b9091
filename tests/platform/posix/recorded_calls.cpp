// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/platform/posix/recorded_calls.h"

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace tarvo::test {
namespace {

RecordedCalls* recording = nullptr;  // of the main thread, on which these tests run

bool allows(const char* name, bool onlyGroup = false) {
  if (recording == nullptr || recording->note(name, onlyGroup)) return true;
  errno = EPERM;
  return false;
}

bool isFolder(int file) {
  struct stat status{};
  return ::fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

RecordedCalls::RecordedCalls() { recording = this; }
RecordedCalls::~RecordedCalls() { recording = nullptr; }

bool RecordedCalls::note(const std::string& name, bool onlyGroup) {
  if (names_.empty() || names_.back() != name) names_.push_back(name);
  if (name == "sync file") return !refusesSync_;
  return name != "owner" || !(onlyGroup ? refusesGroup_ : refusesOwner_);
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

int fchown(int file, uid_t owner, gid_t group) noexcept {
  if (!tarvo::test::allows("owner", owner == static_cast<uid_t>(-1))) return -1;
  return static_cast<int>(::syscall(SYS_fchown, file, owner, group));
}

int fchmod(int file, mode_t mode) noexcept {
  if (!tarvo::test::allows("mode")) return -1;
  return static_cast<int>(::syscall(SYS_fchmod, file, mode));
}
}
