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
  file_ = Descriptor(::open(path.text().c_str(), O_RDONLY | O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666));
  struct stat status{};
  if (!file_ || ::fstat(file_.get(), &status) != 0 || !S_ISREG(status.st_mode)) return;
  if (::flock(file_.get(), LOCK_EX | LOCK_NB) == 0) {
    state_ = State::held;
  } else if (errno == EWOULDBLOCK) {
    state_ = State::heldByAnother;
  }
}

}  // namespace tarvo
