// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/run_loop.h"

namespace tarvo {

// The run loop of a scenario: posted calls run when a line has ended.
class ScenarioClock : public RunLoop {
 public:
  virtual void settle() = 0;                 // runs the posted calls and the timers that are due
  virtual void advance(double seconds) = 0;  // lets that time go by
};

}  // namespace tarvo
