// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/text/paths.h"

namespace tarvo {

// What the desktop does for the program. Every failure is silent.
class Workspace {
 public:
  virtual ~Workspace() = default;
  virtual void openFile(const DiskPath& path) = 0;           // a file or folder, with its usual program
  virtual void openAddress(const std::string& address) = 0;  // in the user's browser
  virtual void launchApplication(const std::string& name) = 0;
  virtual std::vector<ProductPath> launchedApplications() = 0;  // the application bundles that run now
};

}  // namespace tarvo
