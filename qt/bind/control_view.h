// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include "platform/controls/controls.h"

class QWidget;

namespace tarvo {

class Registry;

// One control shown by one widget.
// Duty: be the control's view for as long as the widget lives: name, accessible name, tool tip, enabled and hidden
// state here, the rest in the derived class. Each change shows the whole state again, which is cheap and repeatable.
// Owned by the widget, as its child; the control outlives it.
class ControlView : public QObject {
 public:
  ControlView(Control& control, QWidget& widget, Registry& registry);
  ~ControlView() override;

 protected:
  virtual void show(Control::Change change) = 0;  // the derived constructor calls it once, with Change::items
  void showCommonState();
  QWidget& widget() const { return widget_; }

 private:
  Control& control_;
  QWidget& widget_;
  Registry& registry_;
};

// Hidden by itself, not because its page or window is not shown.
bool isHiddenItself(const QWidget& widget);

}  // namespace tarvo
