// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QIcon>
#include <QPainterPath>
#include <QStyleOptionToolButton>
#include <QVariant>
#include <QWidget>

#include "qt/look/draw.h"
#include "qt/look/metrics.h"
#include "qt/look/plate.h"
#include "qt/look/segment.h"

namespace tarvo {
namespace {

// The whole control's plate as this piece sees it: it reaches beyond the piece where a neighbour goes on.
QRectF sharedPlate(const QRectF& piece, SegmentPlace place) {
  const bool goesOnLeft = place == SegmentPlace::middle || place == SegmentPlace::last;
  const bool goesOnRight = place == SegmentPlace::first || place == SegmentPlace::middle;
  const double beyond = 2 * metrics::controlRadius;
  return piece.adjusted(goesOnLeft ? -beyond : 0, 0, goesOnRight ? beyond : 0, 0);
}

void drawDivider(QPainter& painter, const QRectF& piece, const QColor& color) {
  const double inset = piece.height() / 4;
  painter.fillRect(
      snapped(painter, QRectF(piece.left(), piece.top() + inset, lineWidth(painter), piece.height() - 2 * inset)),
      color);
}

void drawFace(QPainter& painter, const QStyleOptionToolButton& piece) {
  if (piece.icon.isNull()) {
    painter.setFont(piece.font);
    return drawLabel(painter, piece.rect, Qt::AlignCenter, piece.text, piece.palette.color(QPalette::ButtonText));
  }
  const bool isEnabled = is(piece, QStyle::State_Enabled);
  const QRect picture = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, piece.iconSize, piece.rect);
  piece.icon.paint(&painter, picture, Qt::AlignCenter, isEnabled ? QIcon::Normal : QIcon::Disabled);
}

}  // namespace

bool drawSegment(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  const auto* piece = qstyleoption_cast<const QStyleOptionToolButton*>(&option);
  const auto place = segmentPlace(widget);
  if (!piece || !place) return false;
  const QPalette& palette = option.palette;
  const QRectF rect = option.rect;
  painter.save();
  painter.setClipRect(option.rect, Qt::IntersectClip);
  drawPlate(painter, sharedPlate(rect, *place), metrics::controlRadius, palette.color(QPalette::Midlight),
            palette.color(QPalette::Mid));
  if (*place == SegmentPlace::middle || *place == SegmentPlace::last)
    drawDivider(painter, rect, palette.color(QPalette::Mid));
  const QRectF raised = rect.adjusted(2, 2, -2, -2);
  const QColor accent = palette.color(QPalette::Highlight);
  const QColor chosen = mixed(palette.color(QPalette::Button), accent, is(option, QStyle::State_Sunken) ? 0.2 : 0.1);
  if (is(option, QStyle::State_On))
    drawPlate(painter, raised, metrics::controlRadius - 2, chosen, accent);
  else
    drawPlate(painter, raised, metrics::controlRadius - 2, pushed(option, palette.color(QPalette::Midlight)));
  painter.restore();
  drawFace(painter, *piece);
  if (showsFocus(option)) drawFocusRing(painter, raised, metrics::controlRadius - 2, palette);
  return true;
}

}  // namespace tarvo
