// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <map>
#include <mutex>
#include <utility>

#include "console/script/scenario_clock.h"

namespace tarvo {

// A clock that stands still until it is told to advance. Timers fire in the order of their times, then of their making.
class ManualRunLoop : public ScenarioClock {
 public:
  void post(std::function<void()> call) override;
  Timer after(double seconds, std::function<void()> call) override;
  void cancel(Timer timer) override;
  void settle() override;
  void advance(double seconds) override;

 private:
  std::function<void()> takePosted();
  std::mutex mutex_;  // of what was posted
  std::deque<std::function<void()>> posted_;
  std::map<std::pair<double, Timer>, std::function<void()>> timers_;
  double now_ = 0;
  Timer lastTimer_ = 0;
};

}  // namespace tarvo
