// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/frame_animation.h"

#include <QStyle>
#include <QVariantAnimation>
#include <QWidget>
#include <utility>

namespace tarvo {
namespace {
constexpr int duration = 200;  // ms
}  // namespace

FrameAnimation::FrameAnimation(QWidget& window, std::function<void(bool)> moving)
    : QObject(&window), window_(window), moving_(std::move(moving)) {}

void FrameAnimation::resizeTo(QSize size, bool animate) {
  if (animation_ != nullptr) animation_->stop();
  if (!animate || size == window_.size()) {
    window_.setFixedSize(size);
    moving_(false);
    return;
  }
  if (animation_ == nullptr) {
    animation_ = new QVariantAnimation(this);
    animation_->setDuration(duration);
    animation_->setEasingCurve(QEasingCurve::InOutQuad);
    connect(animation_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& step) { window_.setFixedSize(step.toSize()); });
    connect(animation_, &QVariantAnimation::finished, this, [this] { moving_(false); });
  }
  moving_(true);
  animation_->setStartValue(window_.size());
  animation_->setEndValue(size);
  animation_->start();
}

bool isAnimationWanted(const QWidget& window) {
  return qEnvironmentVariableIsEmpty("TARVO_NO_ANIMATION") && window.isVisible() &&
         window.style()->styleHint(QStyle::SH_Widget_Animate, nullptr, &window) != 0;
}

}  // namespace tarvo
