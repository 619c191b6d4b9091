// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/tool_chooser_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <algorithm>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/bind/segments_widget.h"
#include "qt/look/metrics.h"
#include "qt/look/segment.h"

namespace tarvo {
namespace {

// There are nine segments for eight tools: the one without a tool takes no room.
void closeUp(const SegmentedControl& control, const SegmentsWidget& shown) {
  int tools = 0;
  for (int i = 0; i < control.segmentCount(); ++i) {
    const bool isTool = !control.segments()[static_cast<std::size_t>(i)].image.empty();
    tools += isTool ? 1 : 0;
    if (!isTool) shown.segments()[static_cast<std::size_t>(i)]->hide();
  }
  if (tools == 0) return;
  makeSegment(*shown.segments()[static_cast<std::size_t>(tools - 1)], segmentPlaceOf(tools - 1, tools));
}

// The chosen tool by name, with room for the longest.
class ToolName : public QLabel {
 public:
  explicit ToolName(QWidget* parent) : QLabel(parent) { setForegroundRole(QPalette::PlaceholderText); }

  void follow(const SegmentsWidget& group) {
    for (const QToolButton* segment : group.segments()) {
      const QString name = segment->accessibleName();
      setMinimumWidth(std::max(minimumWidth(), fontMetrics().horizontalAdvance(name)));
      connect(segment, &QToolButton::toggled, this, [this, name](bool isChosen) {
        if (isChosen) setText(name);
      });
      if (segment->isChecked()) setText(name);
    }
  }
};

}  // namespace

QWidget* buildToolChooser(Interface& interface, Binder& binder, QWidget* parent) {
  auto* chooser = new QWidget(parent);
  auto* row = new QHBoxLayout(chooser);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(metrics::labelGap);
  StyleOutlets& style = interface.style;
  auto* name = new ToolName(chooser);
  for (SegmentedControl* group : {&style.TEAppSeg1, &style.TEAppSeg2, &style.TEAppSeg3}) {
    QWidget* segments = binder.segments(*group, chooser);
    closeUp(*group, dynamic_cast<SegmentsWidget&>(*segments));
    name->follow(dynamic_cast<SegmentsWidget&>(*segments));
    row->addWidget(segments);
  }
  row->addSpacing(metrics::grid);
  row->addWidget(name, 1);
  chooser->setFocusProxy(chooser->findChild<QWidget*>(toQString(style.TEAppSeg1.name() + ".0")));
  return chooser;
}

}  // namespace tarvo
