// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls/windows.h"

// The arithmetic of the main window's frame: pure functions in single precision, from left to right as written.
namespace tarvo {

float toolbarHeight(const WindowHeights& heights);   // 0 without a toolbar or with a hidden one
float titlebarHeight(const WindowHeights& heights);  // negative for a window without a title bar

// The frame that shows a pane of that size: left and top edge stay, nothing is clamped to the screen.
Rect paneFrame(const Rect& frame, Size pane, float titlebar, float toolbar);

}  // namespace tarvo
