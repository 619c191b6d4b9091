// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <utility>

#include "platform/services/run_loop.h"

// A run loop without a window system, on the monotonic clock. For one thread, but for post().
namespace tarvo {

class PosixRunLoop : public RunLoop {
 public:
  void post(std::function<void()> call) override;
  Timer after(double seconds, std::function<void()> call) override;
  void cancel(Timer timer) override;

  // Runs posted calls and timers until none is left or stop() is called. Runs nest; stop() ends the innermost one, and
  // what it leaves is run by the next.
  void run();
  void stop() { stopped_ = true; }

 private:
  using Clock = std::chrono::steady_clock;
  bool runNext();  // false: nothing is left
  std::function<void()> takePosted();
  std::mutex mutex_;  // of what was posted
  std::condition_variable wasPosted_;
  std::deque<std::function<void()>> posted_;
  std::map<std::pair<Clock::time_point, Timer>, std::function<void()>> timers_;  // the next one first
  Timer lastTimer_ = 0;
  bool stopped_ = false;
};

}  // namespace tarvo
