// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/tool_chooser_view.h"

#include <QHBoxLayout>
#include <QWidget>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/look/metrics.h"

namespace tarvo {

QWidget* buildToolChooser(Interface& interface, Binder& binder, QWidget* parent) {
  auto* chooser = new QWidget(parent);
  auto* row = new QHBoxLayout(chooser);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(metrics::labelGap);
  StyleOutlets& style = interface.style;
  for (SegmentedControl* group : {&style.TEAppSeg1, &style.TEAppSeg2, &style.TEAppSeg3}) {
    row->addWidget(binder.segments(*group, chooser));
  }
  chooser->setFocusProxy(chooser->findChild<QWidget*>(toQString(style.TEAppSeg1.name() + ".0")));
  return chooser;
}

}  // namespace tarvo
