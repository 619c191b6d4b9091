// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/first_paint.h"

#include <QEvent>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <chrono>
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

}  // namespace tarvo
