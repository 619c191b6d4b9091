// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

namespace tarvo {

// The main thread's loop. Posted calls run one at a time in the order of posting, also in nested (modal) loops.
class RunLoop {
 public:
  using Timer = std::uint64_t;  // 0 is no timer
  virtual ~RunLoop() = default;
  virtual void post(std::function<void()> call) = 0;                    // from any thread
  virtual Timer after(double seconds, std::function<void()> call) = 0;  // one shot
  virtual void cancel(Timer timer) = 0;
};

}  // namespace tarvo
