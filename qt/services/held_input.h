// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

namespace tarvo {

// Serves the windows until it is over, or the time is: they paint, and can be closed. What else the user does is held
// back and comes afterwards, in its order. isOver is asked whenever something has happened in this thread.
void serveWithoutInput(const std::function<bool()>& isOver, std::chrono::milliseconds limit);

}  // namespace tarvo
