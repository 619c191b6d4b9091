// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/qt_run_loop.h"

#include <QTimer>
#include <cmath>
#include <utility>

namespace tarvo {

void QtRunLoop::post(std::function<void()> call) {
  QMetaObject::invokeMethod(&context_, std::move(call), Qt::QueuedConnection);
}

RunLoop::Timer QtRunLoop::after(double seconds, std::function<void()> call) {
  const Timer id = ++last_;
  auto* timer = new QTimer(&context_);
  timer->setSingleShot(true);
  timer->setTimerType(Qt::PreciseTimer);
  QObject::connect(timer, &QTimer::timeout, timer, [this, id, call = std::move(call)] {
    // The call may last long or end the program: the timer is gone before it.
    const std::function<void()> due = call;
    cancel(id);
    due();
  });
  timers_[id] = timer;
  timer->start(static_cast<int>(std::ceil(seconds * 1000)));
  return id;
}

void QtRunLoop::cancel(Timer id) {
  const auto running = timers_.find(id);
  if (running == timers_.end()) return;
  running->second->stop();
  running->second->deleteLater();
  timers_.erase(running);
}

}  // namespace tarvo
