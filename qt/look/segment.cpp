// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/segment.h"

#include <QToolButton>
#include <QVariant>

#include "qt/look/metrics.h"

namespace tarvo {

constexpr char placeProperty[] = "segmentPlace";

void makeSegment(QToolButton& button, SegmentPlace place) {
  button.setProperty(placeProperty, static_cast<int>(place));
  button.setCheckable(true);
  button.setFocusPolicy(Qt::StrongFocus);
  button.setIconSize({metrics::segmentIcon, metrics::segmentIcon});
  button.setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  button.update();
}

SegmentPlace segmentPlaceOf(int index, int count) {
  if (count == 1) return SegmentPlace::only;
  return index == 0 ? SegmentPlace::first : index == count - 1 ? SegmentPlace::last : SegmentPlace::middle;
}

std::optional<SegmentPlace> segmentPlace(const QWidget* widget) {
  const QVariant place = widget ? widget->property(placeProperty) : QVariant();
  if (!place.isValid()) return std::nullopt;
  return static_cast<SegmentPlace>(place.toInt());
}

}  // namespace tarvo
