// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/posix_run_loop.h"

#include <algorithm>

namespace tarvo {

void PosixRunLoop::post(std::function<void()> call) {
  {
    const std::lock_guard lock(mutex_);
    posted_.push_back(std::move(call));
  }
  wasPosted_.notify_one();
}

std::function<void()> PosixRunLoop::takePosted() {
  const std::lock_guard lock(mutex_);
  if (posted_.empty()) return nullptr;
  std::function<void()> call = std::move(posted_.front());
  posted_.pop_front();
  return call;
}

RunLoop::Timer PosixRunLoop::after(double seconds, std::function<void()> call) {
  const std::chrono::duration<double> delay(std::max(seconds, 0.0));
  timers_.emplace(std::pair(Clock::now() + std::chrono::ceil<Clock::duration>(delay), ++lastTimer_), std::move(call));
  return lastTimer_;
}

void PosixRunLoop::cancel(Timer timer) {
  std::erase_if(timers_, [timer](const auto& entry) { return entry.first.second == timer; });
}

bool PosixRunLoop::runNext() {
  const bool isDue = !timers_.empty() && timers_.begin()->first.first <= Clock::now();
  // Taken out before it runs: it may post, cancel or run a loop of its own.
  if (isDue) {
    const auto timer = timers_.extract(timers_.begin());
    timer.mapped()();
  } else if (const auto call = takePosted()) {
    call();
  } else if (!timers_.empty()) {
    std::unique_lock lock(mutex_);
    wasPosted_.wait_until(lock, timers_.begin()->first.first, [this] { return !posted_.empty(); });
  } else {
    return false;
  }
  return true;
}

void PosixRunLoop::run() {
  stopped_ = false;
  while (!stopped_ && runNext()) {
  }
  stopped_ = false;
}

}  // namespace tarvo
