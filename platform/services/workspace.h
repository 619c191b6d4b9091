// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/services/result.h"
#include "platform/text/paths.h"

namespace tarvo {

// What the desktop does for the program. That it took a request does not say that anything came up.
class Workspace {
 public:
  virtual ~Workspace() = default;
  virtual Result<> openFile(const DiskPath& path) = 0;           // a file or folder, with its usual program
  virtual Result<> openAddress(const std::string& address) = 0;  // in the user's browser
  virtual Result<> launchApplication(const std::string& name) = 0;
  virtual std::vector<ProductPath> launchedApplications() = 0;  // the application bundles that run now
};

}  // namespace tarvo
