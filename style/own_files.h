// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/services/result.h"
#include "platform/text/paths.h"

namespace tarvo {

class FileService;

// What the manager keeps for itself of a user: no style is exported over it.
// Duty: tell such a place, also behind links. Not: knowing which files there are.
class OwnFiles {
 public:
  // folder: all in it is the manager's own. The service outlives this.
  OwnFiles(const FileService& service, std::vector<DiskPath> files, DiskPath folder);
  // Fails where the path is, or leads to, an own file or a place in the folder.
  Result<> checkOther(const DiskPath& path) const;

 private:
  bool isOwn(const DiskPath& path) const;
  const FileService& service_;
  std::vector<DiskPath> files_;
  DiskPath folder_;
};

}  // namespace tarvo
