// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/plate.h"

#include <QStyleOption>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace tarvo {
namespace {

// A rounded rectangle whose outer edge is rect.
void drawRounded(QPainter& painter, const QRectF& rect, double radius, const QPen& pen, const QBrush& brush) {
  const double inset = pen.style() == Qt::NoPen ? 0 : pen.widthF() / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(pen);
  painter.setBrush(brush);
  painter.drawRoundedRect(snapped(painter, rect).adjusted(inset, inset, -inset, -inset), radius - inset,
                          radius - inset);
  painter.restore();
}

}  // namespace

QColor mixed(const QColor& a, const QColor& b, double share) {
  const auto part = [share](int from, int to) { return from + static_cast<int>(std::lround((to - from) * share)); };
  return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue()), part(a.alpha(), b.alpha())};
}

QColor pushed(const QStyleOption& option, const QColor& plate) {
  const double share = !is(option, QStyle::State_Enabled)    ? 0
                       : is(option, QStyle::State_Sunken)    ? 0.12
                       : is(option, QStyle::State_On)        ? 0.09
                       : is(option, QStyle::State_MouseOver) ? 0.05
                                                             : 0;
  return mixed(plate, option.palette.color(QPalette::ButtonText), share);
}

bool isDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

QRectF snapped(const QPainter& painter, const QRectF& rect) {
  const QTransform& toDevice = painter.deviceTransform();
  if (toDevice.type() > QTransform::TxScale) return rect;
  const QRectF device = toDevice.mapRect(rect);
  const QPointF topLeft(std::round(device.left()), std::round(device.top()));
  const QPointF bottomRight(std::round(device.right()), std::round(device.bottom()));
  return toDevice.inverted().mapRect(QRectF(topLeft, bottomRight));
}

double lineWidth(const QPainter& painter) {
  const double scale = painter.deviceTransform().m11();
  return scale > 0 ? std::max(1.0, std::floor(scale)) / scale : 1;
}

void drawPlate(QPainter& painter, const QRectF& rect, double radius, const QColor& fill, const QColor& border) {
  drawRounded(painter, rect, radius, border.isValid() ? QPen(border, lineWidth(painter)) : QPen(Qt::NoPen), fill);
}

void drawFocusRing(QPainter& painter, const QRectF& rect, double radius, const QPalette& palette) {
  drawRounded(painter, rect, radius, QPen(palette.color(QPalette::Highlight), 2 * lineWidth(painter)), Qt::NoBrush);
}

bool is(const QStyleOption& option, QStyle::StateFlag flag) { return option.state.testFlag(flag); }

bool showsFocus(const QStyleOption& option) {
  return is(option, QStyle::State_HasFocus) && is(option, QStyle::State_KeyboardFocusChange);
}

void drawHorizontalLine(QPainter& painter, const QRectF& rect, const QColor& color) {
  const QRectF whole = snapped(painter, rect);
  const double width = lineWidth(painter);
  painter.fillRect(QRectF(whole.left(), whole.bottom() - width, whole.width(), width), color);
}

void drawStroke(QPainter& painter, const QPolygonF& line, double width, const QColor& color) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(line);
  painter.restore();
}

void drawLabel(QPainter& painter, const QRect& rect, int alignment, const QString& text, const QColor& color) {
  const QFontMetrics metrics = painter.fontMetrics();
  const int flags = alignment | Qt::TextSingleLine | Qt::TextShowMnemonic;
  const bool fits = metrics.size(flags, text).width() <= rect.width();
  const QPen before = painter.pen();
  painter.setPen(color);
  painter.drawText(rect, flags, fits ? text : metrics.elidedText(text, Qt::ElideRight, rect.width(), flags));
  painter.setPen(before);
}

}  // namespace tarvo
