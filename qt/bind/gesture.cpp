// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/gesture.h"

#include <QAbstractButton>
#include <utility>

namespace tarvo {

Gesture::Gesture(QAbstractButton& button, std::function<bool()> isOn, std::function<void()> act)
    : QObject(&button), act_(std::move(act)) {
  connect(&button, &QAbstractButton::pressed, this, [this] { told_ = false; });
  connect(&button, &QAbstractButton::toggled, this, [this, isOn = std::move(isOn)](bool on) {
    if (on == isOn()) return;
    told_ = true;
    act_();
  });
  connect(&button, &QAbstractButton::clicked, this, [this] {
    if (!std::exchange(told_, false)) act_();
  });
}

}  // namespace tarvo
