// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/services/result.h"
#include "platform/text/paths.h"

// Files, folders, addresses and applications that the user asks to see.
// Duty: hand them to the desktop; tell what cannot be opened, and why. Not: waiting for what comes up.
namespace tarvo {

class FileService;
class Workspace;

class Opener {
 public:
  // Not owned.
  Opener(Workspace& workspace, const FileService& files) : workspace_(workspace), files_(files) {}
  // The desktop is asked also for what seems to be gone: it may know how to bring a disk back.
  void openFile(const DiskPath& path) const;
  void openAddress(const std::string& address) const;
  void launchApplication(const std::string& name) const;
  // For who finds before that there is nothing to hand over.
  void cannot(const Failure& failure) const;
  std::function<void(const Failure& failure)> didFail;

 private:
  Workspace& workspace_;
  const FileService& files_;
};

}  // namespace tarvo
