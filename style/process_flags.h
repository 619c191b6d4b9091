// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "style/sibling_tools.h"

namespace tarvo {

// What rooms of the style pane and the main window share beyond the style store.
struct ProcessFlags {
  bool gMenuControllFlag = false;  // the naming or new-dictionary sheet of the pane is up: menus leave only help
  std::optional<Tool> saveHit = Tool::manager;  // the chosen tool; nothing for a place of the chooser without one
};

}  // namespace tarvo
