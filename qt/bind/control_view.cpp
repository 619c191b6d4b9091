// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/control_view.h"

#include <QWidget>

#include "qt/bind/binder.h"
#include "qt/bind/registry.h"

namespace tarvo {

ControlView::ControlView(Control& control, QWidget& widget, Registry& registry)
    : QObject(&widget), control_(control), widget_(widget), registry_(registry) {
  widget.setObjectName(toQString(control.name()));
  registry.enter(control, widget);
  control.view = [this](Control::Change change) { show(change); };
}

ControlView::~ControlView() {
  control_.view = nullptr;
  registry_.leave(control_, widget_);
}

void ControlView::showCommonState() {
  widget_.setAccessibleName(toQString(control_.label()));
  widget_.setToolTip(plainToolTip(control_.toolTip()));
  widget_.setEnabled(control_.isEnabled());
  // A widget that was never hidden comes up with its window; showing one without a window would open one.
  if (control_.isHidden() != isHiddenItself(widget_)) widget_.setVisible(!control_.isHidden());
}

bool isHiddenItself(const QWidget& widget) {
  return widget.isHidden() && widget.testAttribute(Qt::WA_WState_ExplicitShowHide);
}

}  // namespace tarvo
