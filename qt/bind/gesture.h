// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>

class QAbstractButton;

namespace tarvo {

// Presses of a checkable button that stands for one of several choices.
// Duty: one call for each press, by mouse, key or an assistive tool (which toggles without a click), also when the
// choice is the present one; none for changes by the program. Not: keeping the button in step, which the caller does
// after the call. Owned by the button.
class Gesture : public QObject {
 public:
  // isOn: whether the core holds this choice now.
  Gesture(QAbstractButton& button, std::function<bool()> isOn, std::function<void()> act);

 private:
  std::function<void()> act_;
  bool told_ = false;  // this press was passed on when the button toggled
};

}  // namespace tarvo
