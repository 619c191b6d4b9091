// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/first_paint_probe.h"

#include <unistd.h>

#include <QEvent>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <string_view>
#include <utility>

namespace tarvo {
namespace {

class FirstPaint : public QObject {
 public:
  FirstPaint(QWidget& window, std::function<void()> call) : QObject(&window), call_(std::move(call)) {
    window.installEventFilter(this);
  }

  // The window paints before what stands in it; a queued call comes after all of it.
  bool eventFilter(QObject* window, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    window->removeEventFilter(this);
    QMetaObject::invokeMethod(
        this,
        [this] {
          deleteLater();
          call_();
        },
        Qt::QueuedConnection);
    return false;
  }

 private:
  std::function<void()> call_;
};

}  // namespace

void afterFirstPaint(QWidget& window, std::function<void()> call) { new FirstPaint(window, std::move(call)); }

void waitForFirstPaint(QWidget& window) {
  constexpr std::chrono::seconds longest(1);
  QEventLoop loop;
  afterFirstPaint(window, [left = QPointer<QEventLoop>(&loop)] {
    if (left) left->quit();
  });
  QTimer::singleShot(longest, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void probeFirstPaint(QWidget& window, std::function<void()> quit) {
  bool isNumber = false;
  const int descriptor = qEnvironmentVariableIntValue("TARVO_PAINT_PROBE_FD", &isNumber);
  if (!isNumber) return;
  afterFirstPaint(window, [descriptor, quit = std::move(quit)] {
    constexpr std::string_view line = "first-paint\n";
    const auto written = write(descriptor, line.data(), line.size());
    if (written < 0 || qEnvironmentVariableIsSet("TARVO_PAINT_PROBE_QUIT")) quit();
  });
}

}  // namespace tarvo
