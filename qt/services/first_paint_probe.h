// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QWidget;

namespace tarvo {

// Calls once after the window has been painted whole for the first time.
void afterFirstPaint(QWidget& window, std::function<void()> call);

// Waits for that, so that what comes next does not hold it up. Takes no input meanwhile, and goes on after a while when
// the desktop does not show the window.
void waitForFirstPaint(QWidget& window);

// For measuring the start: writes "first-paint\n" to the descriptor whose number TARVO_PAINT_PROBE_FD holds after the
// first paint, and calls quit then when TARVO_PAINT_PROBE_QUIT is set. Nothing without the first variable.
void probeFirstPaint(QWidget& window, std::function<void()> quit);

}  // namespace tarvo
