// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/plate.h"

#include <QLineF>
#include <QPolygonF>
#include <QStyleOption>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace tarvo {
namespace {

class Saved {
 public:
  explicit Saved(QPainter& painter) : painter_(painter) {
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
  }
  ~Saved() { painter_.restore(); }
  Saved(const Saved&) = delete;
  Saved& operator=(const Saved&) = delete;

 private:
  QPainter& painter_;
};

double deviceScale(const QPainter& painter) {
  const double scale = painter.deviceTransform().m11();
  return scale > 0 ? scale : 1;
}

void strokePlate(QPainter& painter, const QRectF& edge, double radius, const QPen& pen, const QBrush& brush) {
  const double inset = pen.style() == Qt::NoPen ? 0 : pen.widthF() / 2;
  const QRectF rect = edge.adjusted(inset, inset, -inset, -inset);
  painter.setPen(pen);
  painter.setBrush(brush);
  painter.drawRoundedRect(rect, radius - inset, radius - inset);
}

}  // namespace

QColor mixed(const QColor& a, const QColor& b, double share) {
  const auto part = [share](int from, int to) { return from + static_cast<int>(std::lround((to - from) * share)); };
  return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue()), part(a.alpha(), b.alpha())};
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
  const double scale = deviceScale(painter);
  return std::max(1.0, std::floor(scale)) / scale;
}

void drawPlate(QPainter& painter, const QRectF& rect, double radius, const QColor& fill, const QColor& border) {
  const Saved saved(painter);
  const QPen pen = border.isValid() ? QPen(border, lineWidth(painter)) : QPen(Qt::NoPen);
  strokePlate(painter, snapped(painter, rect), radius, pen, fill);
}

void drawFocusRing(QPainter& painter, const QRectF& rect, double radius, const QPalette& palette) {
  const Saved saved(painter);
  const QPen ring(palette.color(QPalette::Highlight), 2 * lineWidth(painter));
  strokePlate(painter, snapped(painter, rect), radius, ring, Qt::NoBrush);
}

bool showsFocus(const QStyleOption& option) {
  return option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

void drawHorizontalLine(QPainter& painter, const QRectF& rect, const QColor& color) {
  const QRectF whole = snapped(painter, rect);
  const double width = lineWidth(painter);
  painter.fillRect(QRectF(whole.left(), whole.bottom() - width, whole.width(), width), color);
}

void drawChevron(QPainter& painter, QPointF centre, double halfWidth, Qt::ArrowType direction, const QColor& color) {
  const double depth = halfWidth / 2;
  QPolygonF line({QPointF(-halfWidth, -depth), QPointF(0, depth), QPointF(halfWidth, -depth)});
  QTransform turn;
  turn.rotate(direction == Qt::UpArrow ? 180 : direction == Qt::LeftArrow ? 90 : direction == Qt::RightArrow ? -90 : 0);
  const Saved saved(painter);
  painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(turn.map(line).translated(centre));
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
