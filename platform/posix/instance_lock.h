// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/descriptor.h"
#include "platform/text/paths.h"

// The lock that keeps two programs from writing one user's files. It lies on a file, lasts as long as this object and
// ends with the process, however that ends. The file itself stays.
namespace tarvo {

class InstanceLock {
 public:
  // noFile: something else lies there, or a link, which is never followed. unavailable: the disk gives none; the
  // program goes without.
  enum class State { held, heldByAnother, noFile, unavailable };
  // Tries once and does not wait. Folders for the file are made with mode 0777.
  explicit InstanceLock(const DiskPath& path);
  State state() const { return state_; }

 private:
  Descriptor file_;
  State state_ = State::unavailable;
};

}  // namespace tarvo
