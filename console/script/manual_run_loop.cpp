// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/manual_run_loop.h"

namespace tarvo {

RunLoop::Timer ManualRunLoop::after(double seconds, std::function<void()> call) {
  timers_[{now_ + seconds, ++lastTimer_}] = std::move(call);
  return lastTimer_;
}

void ManualRunLoop::cancel(Timer timer) {
  std::erase_if(timers_, [timer](const auto& entry) { return entry.first.second == timer; });
}

void ManualRunLoop::settle() {
  while (true) {
    std::function<void()> call;
    if (!posted_.empty()) {
      call = std::move(posted_.front());
      posted_.pop_front();
    } else if (!timers_.empty() && timers_.begin()->first.first <= now_) {
      call = std::move(timers_.begin()->second);
      timers_.erase(timers_.begin());
    } else {
      return;
    }
    call();
  }
}

void ManualRunLoop::advance(double seconds) {
  const double end = now_ + seconds;
  settle();
  while (!timers_.empty() && timers_.begin()->first.first <= end) {
    now_ = timers_.begin()->first.first;
    settle();
  }
  now_ = end;
}

}  // namespace tarvo
