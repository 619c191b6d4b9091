// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

class QToolButton;
class QWidget;

// Segmented controls.
// Duty: mark a button as one piece of a segmented control, for the style to draw. Not: which pieces are chosen.
namespace tarvo {

enum class SegmentPlace { only, first, middle, last };

// Makes a button one piece of a segmented control: checkable, reached by Tab. The pieces of a control stand side by
// side without a gap and share one plate. Call again when the place changes.
void makeSegment(QToolButton& button, SegmentPlace place);
SegmentPlace segmentPlaceOf(int index, int count);

std::optional<SegmentPlace> segmentPlace(const QWidget* widget);  // nothing: not a segment

}  // namespace tarvo
