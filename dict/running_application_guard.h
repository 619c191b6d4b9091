// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace tarvo {

class ProductPaths;
class Workspace;

// Tells which of the product's other tools run beside the manager. It refuses nothing: changes are made, and told about
// afterwards.
class RunningApplicationGuard {
 public:
  RunningApplicationGuard(Workspace& workspace, const ProductPaths& paths) : workspace_(workspace), paths_(paths) {}
  RunningApplicationGuard(const RunningApplicationGuard&) = delete;
  RunningApplicationGuard& operator=(const RunningApplicationGuard&) = delete;

  static constexpr int userDictionaryTool = 4;
  // Whether the tool runs at this moment, from exactly the place that the product's paths name.
  bool isStartedApplication(int tool);
  // Called after a list has changed; 1 is that of user dictionaries, 2 any other. The manager's lists are read anew by
  // the tools, so none of them needs to be told; who has to know of the changes observes them.
  void alertStartedApplication(int kind) const {
    if (observer) observer(kind);
  }
  std::function<void(int kind)> observer;

 private:
  Workspace& workspace_;
  const ProductPaths& paths_;
};

}  // namespace tarvo
