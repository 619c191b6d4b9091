// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarvo {

// What rooms of the style pane and the main window share beyond the style store.
struct ProcessFlags {
  bool gMenuControllFlag = false;  // a sheet of the style pane is open: menus leave only the help entries enabled
  int saveHit = 0;                 // index of the chosen sibling tool
};

}  // namespace tarvo
