// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMargins>
#include <QObject>
#include <QRect>
#include <QSize>

#include "platform/services/geometry.h"

class QWidget;

namespace tarvo {

class Window;

// The whole primary screen, y upwards.
Rect primaryScreen();

// The core's frame of a window and the widget's place on the screen, kept the same.
// Duty: put the widget where the frame says, tell the core where the user moved it, and learn how high the decorations
// are once the window manager has said so. Not: sizes of panes, animation. Frames are y up with decorations, widgets
// y down without; the core's frame is the truth. Owned by the widget.
class WindowFrame : public QObject {
 public:
  // fixedDecorations: their height for runs that must be the same on every platform; the platform's own moves and
  // decorations are then ignored. -1: as they are.
  WindowFrame(Window& control, QWidget& widget, int fixedDecorations = -1);
  int decorationHeight() const { return decorations_.top() + decorations_.bottom(); }
  // The widget's size for the core's frame. Side borders come on top of its width.
  QSize clientSize() const;
  // Moves the widget if the frame's top left corner has changed since the last time; a resize leaves it alone.
  void place();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPoint topLeft() const;
  void look();
  void adoptDecorations(const QMargins& found);

  Window& control_;
  QWidget& widget_;
  QMargins decorations_;
  QPoint placed_;
  bool isPlaced_ = false, isSettled_ = false;
};

}  // namespace tarvo
