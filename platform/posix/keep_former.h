// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/posix/descriptor.h"
#include "platform/services/keeping.h"

struct stat;  // NOLINT(readability-identifier-naming): the system calls it so

namespace tarvo {

FileStamp stampOf(const struct stat& status);

// A file that is about to be replaced, kept in another folder under a name of its own.
class FormerFile {
 public:
  // privateBelow: of the folders above the keeping's, as for makeFolders (folders.h).
  FormerFile(const Keeping& keeping, const DiskPath& privateBelow) : keeping_(keeping), privateBelow_(privateBelow) {}
  // Keeps the file of that name in the open folder; path is its whole path, for who is told of a failure. Nothing is
  // followed. What could not be kept is told by outcome().unkept. A failure: it must be kept, and was not, or nobody
  // knows whose it is.
  Result<> keep(int folder, const std::string& name, const std::string& path);
  void drop();  // it was not replaced after all
  // All but `now`.
  const Replaced& outcome() const { return outcome_; }

 private:
  bool link(int folder, const std::string& name);
  bool nameLink(const std::string& wanted);
  bool copy(int folder, const std::string& name, const std::string& wanted);
  bool keepInPlace(int folder, const std::string& name, const std::string& wanted);
  bool mustLast() const { return outcome_.wasForeign || keeping_.durability == Durability::sure; }
  const Keeping& keeping_;
  const DiskPath& privateBelow_;
  Descriptor place_;
  Replaced outcome_;
};

}  // namespace tarvo
