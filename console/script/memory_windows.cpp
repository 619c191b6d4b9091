// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/memory_windows.h"

#include "console/script/script_error.h"

namespace tarvo {

void MemoryWindows::runModal(Window& window) {
  while (step && !stopped_.contains(&window)) {
    if (!step()) throw Unfinished{};
  }
  stopped_.erase(&window);
}

WindowHeights MemoryWindows::heights(const Window& window) {
  return ScenarioScreen::heights(window, toolbarHidden && toolbarHidden());
}

}  // namespace tarvo
