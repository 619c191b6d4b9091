// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/window_frame.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include "platform/controls/windows.h"

namespace tarvo {
namespace {

constexpr int settlingTime = 600;  // ms that a window manager may take to decorate a new window

QMargins marginsOf(const QWidget& widget) {
  const QRect inner = widget.geometry(), outer = widget.frameGeometry();
  return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
          outer.bottom() - inner.bottom()};
}

// The line from which y counts upwards: the foot of the primary screen.
int footLine() {
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  return screen.top() + screen.height();
}

}  // namespace

Rect primaryScreen() {
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  return {static_cast<float>(screen.left()), 0, static_cast<float>(screen.width()),
          static_cast<float>(screen.height())};
}

WindowFrame::WindowFrame(Window& control, QWidget& widget, int fixedDecorations)
    : QObject(&widget), control_(control), widget_(widget) {
  if (fixedDecorations < 0) {
    widget.installEventFilter(this);
  } else {
    decorations_.setTop(fixedDecorations);
  }
}

QSize WindowFrame::clientSize() const {
  const Rect& frame = control_.frame();
  return {qRound(frame.width), qRound(frame.height) - decorationHeight()};
}

QPoint WindowFrame::topLeft() const {
  const Rect& frame = control_.frame();
  return {qRound(frame.x), footLine() - qRound(frame.top())};
}

void WindowFrame::place() {
  const QPoint corner = topLeft();
  if (isPlaced_ && corner == placed_) return;
  placed_ = corner;
  isPlaced_ = true;
  widget_.move(corner);
}

bool WindowFrame::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::Show:
      QTimer::singleShot(settlingTime, this, [this] {
        isSettled_ = true;
        look();
      });
      break;
    case QEvent::Move:
    case QEvent::WindowActivate: look(); break;
    default: break;
  }
  return false;
}

void WindowFrame::look() {
  if (!widget_.isVisible()) return;
  const QMargins found = marginsOf(widget_);
  // Until the window manager has decorated the window its outer place is not known.
  if (found.isNull() && !isSettled_) return;
  if (found != decorations_) adoptDecorations(found);
  const QPoint corner = widget_.frameGeometry().topLeft();
  if (corner == topLeft()) return;
  placed_ = corner;
  const int foot = corner.y() + qRound(control_.frame().height);
  control_.userMove(static_cast<float>(corner.x()), static_cast<float>(footLine() - foot));
}

// The window stands where it stood, but is known to be higher: no move of the user.
void WindowFrame::adoptDecorations(const QMargins& found) {
  const int more = found.top() + found.bottom() - decorationHeight();
  decorations_ = found;
  Rect frame = control_.frame();
  frame.y -= static_cast<float>(more);
  frame.height += static_cast<float>(more);
  control_.setFrameInPlace(frame);
}

}  // namespace tarvo
