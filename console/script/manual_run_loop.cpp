// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/manual_run_loop.h"

namespace tarvo {

void ManualRunLoop::post(std::function<void()> call) {
  const std::lock_guard lock(mutex_);
  posted_.push_back(std::move(call));
}

std::function<void()> ManualRunLoop::takePosted() {
  const std::lock_guard lock(mutex_);
  if (posted_.empty()) return nullptr;
  std::function<void()> call = std::move(posted_.front());
  posted_.pop_front();
  return call;
}

RunLoop::Timer ManualRunLoop::after(double seconds, std::function<void()> call) {
  timers_[{now_ + seconds, ++lastTimer_}] = std::move(call);
  return lastTimer_;
}

void ManualRunLoop::cancel(Timer timer) {
  std::erase_if(timers_, [timer](const auto& entry) { return entry.first.second == timer; });
}

void ManualRunLoop::settle() {
  while (true) {
    std::function<void()> call = takePosted();
    if (!call && !timers_.empty() && timers_.begin()->first.first <= now_) {
      call = std::move(timers_.begin()->second);
      timers_.erase(timers_.begin());
    }
    if (!call) return;
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
