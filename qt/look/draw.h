// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QPainter;
class QStyleOption;
class QWidget;

// One drawing per element that gives the window its face.
// Duty: paint what the option says, with the option's palette. Each returns false when it is not its case, so that the
// style's base draws; so it does for every element that is not listed here. Not: sizes and places of parts, which the
// style answers (tarvo_style.h).
namespace tarvo {

using Draw = bool (*)(QPainter& painter, const QStyleOption& option, const QWidget* widget);

// draw_buttons.cpp
bool drawPushButtonPlate(QPainter&, const QStyleOption&, const QWidget*);
bool drawPushButtonLabel(QPainter&, const QStyleOption&, const QWidget*);
bool drawCheckMark(QPainter&, const QStyleOption&, const QWidget*);
bool drawFocusFrame(QPainter&, const QStyleOption&, const QWidget*);

// draw_toolbar.cpp
bool drawToolbar(QPainter&, const QStyleOption&, const QWidget*);
bool drawToolbarItem(QPainter&, const QStyleOption&, const QWidget*);

// draw_segments.cpp
bool drawSegment(QPainter&, const QStyleOption&, const QWidget*);

// draw_fields.cpp
bool drawField(QPainter&, const QStyleOption&, const QWidget*);
bool drawCombo(QPainter&, const QStyleOption&, const QWidget*);

// draw_frames.cpp
bool drawCard(QPainter&, const QStyleOption&, const QWidget*);
bool drawHeader(QPainter&, const QStyleOption&, const QWidget*);
bool drawDropMark(QPainter&, const QStyleOption&, const QWidget*);
bool drawScrollBar(QPainter&, const QStyleOption&, const QWidget*);
bool drawTab(QPainter&, const QStyleOption&, const QWidget*);
bool drawTabFoot(QPainter&, const QStyleOption&, const QWidget*);

}  // namespace tarvo
