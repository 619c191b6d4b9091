// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSize>
#include <functional>

class QVariantAnimation;
class QWidget;

namespace tarvo {

// Resizes a window that the user may not resize, at once or over a fifth of a second.
// Duty: the size is fixed at every moment, so that no window manager offers to change it in between. Not: moving; the
// top left corner stays. Owned by the window.
class FrameAnimation : public QObject {
 public:
  // moving: told true before the first step and false after the last one.
  FrameAnimation(QWidget& window, std::function<void(bool)> moving);
  void resizeTo(QSize size, bool animate);

 private:
  QWidget& window_;
  std::function<void(bool)> moving_;
  QVariantAnimation* animation_ = nullptr;  // made for the first animated change
};

// Whether the user and the style want anything to be animated. TARVO_NO_ANIMATION turns it off.
bool isAnimationWanted(const QWidget& window);

}  // namespace tarvo
