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

}  // namespace tarvo
