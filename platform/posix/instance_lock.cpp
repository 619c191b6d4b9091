// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>

#include "platform/posix/folders.h"
#include "platform/text/text_rules.h"

namespace tarvo {

InstanceLock::InstanceLock(const DiskPath& path) {
  if (!isAbsolutePath(path.text()) || !makeFolders(path.folder())) return;
  constexpr int flags = O_RDONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
  file_ = Descriptor(::open(path.text().c_str(), flags, 0666));
  struct stat status{};
  const bool isKnown = file_ ? ::fstat(file_.get(), &status) == 0 : ::lstat(path.text().c_str(), &status) == 0;
  if (isKnown && !S_ISREG(status.st_mode)) state_ = State::noFile;
  if (!file_ || !isKnown || state_ == State::noFile) return;
  if (::flock(file_.get(), LOCK_EX | LOCK_NB) == 0) {
    state_ = State::held;
  } else if (errno == EWOULDBLOCK) {
    state_ = State::heldByAnother;
  }
}

}  // namespace tarvo
