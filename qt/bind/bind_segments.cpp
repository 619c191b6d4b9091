// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QHBoxLayout>
#include <QToolButton>
#include <algorithm>

#include "qt/bind/binder.h"
#include "qt/bind/control_view.h"
#include "qt/bind/gesture.h"
#include "qt/bind/segments_widget.h"
#include "qt/look/metrics.h"
#include "qt/look/segment.h"

namespace tarvo {

SegmentsWidget::SegmentsWidget(QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SegmentsWidget::setSegmentCount(std::size_t count) {
  if (segments_.size() == count) return;
  qDeleteAll(segments_);
  segments_.clear();
  for (std::size_t i = 0; i < count; ++i) {
    auto* segment = new QToolButton(this);
    makeSegment(*segment, segmentPlaceOf(static_cast<int>(i), static_cast<int>(count)));
    layout()->addWidget(segment);
    segments_.push_back(segment);
  }
}

int SegmentsWidget::selectedSegment() const {
  for (std::size_t i = 0; i < segments_.size(); ++i) {
    if (segments_[i]->isChecked()) return static_cast<int>(i);
  }
  return -1;
}

namespace {

class SegmentsView : public ControlView {
 public:
  SegmentsView(SegmentedControl& control, SegmentsWidget& widget, Binder& binder)
      : ControlView(control, widget, binder.registry()), control_(control), segments_(widget), binder_(binder) {
    SegmentsView::show(Control::Change::items);
  }

 protected:
  void show(Control::Change change) override {
    showCommonState();
    if (change == Control::Change::items) showSegments();
    // Deselecting comes first: at no moment two segments are chosen.
    for (const bool on : {false, true}) {
      for (int i = 0; i < control_.segmentCount(); ++i) {
        if ((i == control_.selectedSegment()) == on) at(i).setChecked(on);
      }
    }
  }

 private:
  QToolButton& at(int segment) { return *segments_.segments()[static_cast<std::size_t>(segment)]; }

  void showSegments() {
    const bool isNew = segments_.segments().size() != control_.segments().size();
    segments_.setSegmentCount(control_.segments().size());
    const bool hasImages = std::any_of(control_.segments().begin(), control_.segments().end(),
                                       [](const SegmentedControl::Segment& segment) { return !segment.image.empty(); });
    for (int i = 0; i < control_.segmentCount(); ++i) {
      const SegmentedControl::Segment& segment = control_.segments()[static_cast<std::size_t>(i)];
      at(i).setIcon(binder_.icon(segment.image));
      if (hasImages) at(i).setMinimumSize(metrics::segmentWidth, metrics::segmentHeight);  // also the one without
      at(i).setToolTip(plainToolTip(segment.toolTip));
      at(i).setAccessibleName(toQString(segment.toolTip));
      at(i).setEnabled(segment.enabled);
      if (!isNew) continue;
      at(i).setObjectName(toQString(control_.name() + "." + std::to_string(i)));
      new Gesture(
          at(i), [this, i] { return control_.selectedSegment() == i; },
          [this, i] {
            control_.userClick(i);
            show(Control::Change::value);
          });
    }
  }

  SegmentedControl& control_;
  SegmentsWidget& segments_;
  Binder& binder_;
};

}  // namespace

QWidget* Binder::segments(SegmentedControl& control, QWidget* parent) {
  auto* widget = new SegmentsWidget(parent);
  new SegmentsView(control, *widget, *this);
  return widget;
}

}  // namespace tarvo
