// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/posix/descriptor.h"
#include "platform/services/result.h"

namespace tarvo {

// Something new that is built beside its place, under a name that nobody can guess, and takes its own name when all of
// it is on the disk: whoever looks, also after a crash at any moment, meets nothing there or the whole.
// Duty: the open folder and the temporary name; taking the place, where nothing is replaced; leaving nothing behind
// after a failure, neither under the one name nor under the other. Not: what is built, and syncing it.
class Beside {
 public:
  // The place: an absolute path without a trailing slash.
  explicit Beside(std::string path);
  ~Beside();
  Beside(const Beside&) = delete;
  Beside& operator=(const Beside&) = delete;

  // Fails when anything has the name already, a dangling link included, and without a folder to build in.
  Result<> open();
  int folder() const { return folder_.get(); }
  const std::string& temporary() const { return temporary_; }  // the name to build under
  // Gives it its name and puts that on the disk.
  Result<> place();

 private:
  std::string path_, name_, temporary_;
  Descriptor folder_;
};

// Why nothing could be made at a path, from errno: without a folder that is what is told of.
Failure unmade(const std::string& path);

}  // namespace tarvo
