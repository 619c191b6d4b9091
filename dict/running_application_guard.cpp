// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/running_application_guard.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/services/product_paths.h"
#include "platform/services/workspace.h"

namespace tarvo {

bool RunningApplicationGuard::isStartedApplication(int tool) {
  const std::vector<ProductPath> running = workspace_.launchedApplications();
  const ProductPath path = paths_.tarvoPathGetAppleyPath(tool);
  return !path.empty() && std::find(running.begin(), running.end(), path) != running.end();
}

}  // namespace tarvo
