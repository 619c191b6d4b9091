// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QPolygonF>
#include <QRectF>
#include <QStyle>

class QStyleOption;

// Strokes that all drawings share.
// Duty: plates, lines and chevrons whose edges lie on the pixels of the device at every scale. All rectangles are in
// device-independent pixels. Not: knowing which control is drawn. The painter's state is kept.
namespace tarvo {

// "share" of b over a, 0 to 1.
QColor mixed(const QColor& a, const QColor& b, double share);
bool isDark(const QPalette& palette);

// The rectangle with its edges moved to whole device pixels, and the width of the finest calm line.
QRectF snapped(const QPainter& painter, const QRectF& rect);
double lineWidth(const QPainter& painter);

// A rounded plate inside rect; an invalid border colour draws none.
void drawPlate(QPainter& painter, const QRectF& rect, double radius, const QColor& fill, const QColor& border = {});

// The ring of the control that has the keyboard: drawn inside rect, over the control's own border.
void drawFocusRing(QPainter& painter, const QRectF& rect, double radius, const QPalette& palette);
bool showsFocus(const QStyleOption& option);

bool is(const QStyleOption& option, QStyle::StateFlag flag);
QColor pushed(const QStyleOption& option, const QColor& plate);  // the plate under the mouse or the finger

void drawHorizontalLine(QPainter& painter, const QRectF& rect, const QColor& color);           // along the foot of rect
void drawStroke(QPainter& painter, const QPolygonF& line, double width, const QColor& color);  // with round ends

// The text within rect, shortened with an ellipsis when it does not fit; mnemonics are shown.
void drawLabel(QPainter& painter, const QRect& rect, int alignment, const QString& text, const QColor& color);

}  // namespace tarvo
