// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>

#include "qt/look/draw.h"
#include "qt/look/metrics.h"
#include "qt/look/plate.h"

namespace tarvo {

bool drawField(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
  if (!frame || frame->lineWidth <= 0) return false;  // a field inside another control has no plate of its own
  const QPalette& palette = option.palette;
  drawPlate(painter, option.rect, metrics::controlRadius, palette.color(QPalette::Base), palette.color(QPalette::Dark));
  // A field shows who receives the typing, however it got the keyboard.
  const bool isTyped = is(option, QStyle::State_HasFocus) && !is(option, QStyle::State_ReadOnly);
  if (isTyped) drawFocusRing(painter, option.rect, metrics::controlRadius, palette);
  return true;
}

bool drawCombo(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(&option);
  if (!combo || combo->editable) return false;
  const QPalette& palette = option.palette;
  drawPlate(painter, option.rect, metrics::controlRadius, pushed(option, palette.color(QPalette::Button)),
            palette.color(QPalette::Mid));
  const QPointF centre(option.rect.right() + 1 - metrics::popUpArrowWidth / 2.0, QRectF(option.rect).center().y());
  const QColor mark = palette.color(is(option, QStyle::State_Enabled) ? QPalette::PlaceholderText : QPalette::Dark);
  for (const int up : {-1, 1}) {
    const QPointF tip = centre + QPointF(0, 6 * up);
    drawStroke(painter, {tip + QPointF(-3.5, -3.5 * up), tip, tip + QPointF(3.5, -3.5 * up)}, 1.5, mark);
  }
  if (showsFocus(option)) drawFocusRing(painter, option.rect, metrics::controlRadius, palette);
  return true;
}

}  // namespace tarvo
