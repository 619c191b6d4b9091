// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QFrame>
#include <QStyleOptionFrame>
#include <QWidget>

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
  const bool isTyped = option.state.testFlag(QStyle::State_HasFocus) && !option.state.testFlag(QStyle::State_ReadOnly);
  if (isTyped) drawFocusRing(painter, option.rect, metrics::controlRadius, palette);
  return true;
}

bool drawFrame(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  if (widget && widget->inherits("QComboBoxPrivateContainer")) return drawMenuPlate(painter, option, widget);
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
  if (frame && frame->lineWidth <= 0) return true;
  const QPalette& palette = option.palette;
  drawPlate(painter, option.rect, metrics::cardRadius, palette.color(QPalette::Base), palette.color(QPalette::Mid));
  if (widget && widget->inherits("QAbstractItemView") && showsFocus(option))
    drawFocusRing(painter, option.rect, metrics::cardRadius, palette);
  return true;
}

bool drawLine(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
  if (!frame || (frame->frameShape != QFrame::HLine && frame->frameShape != QFrame::VLine)) return false;
  const QColor color = option.palette.color(QPalette::Mid);
  const double width = lineWidth(painter);
  QRectF line = option.rect;
  if (frame->frameShape == QFrame::HLine)
    line = QRectF(line.left(), line.center().y() - width / 2, line.width(), width);
  else
    line = QRectF(line.center().x() - width / 2, line.top(), width, line.height());
  painter.fillRect(snapped(painter, line), color);
  return true;
}

bool drawToolTip(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const QPalette& palette = option.palette;
  painter.fillRect(option.rect, palette.color(QPalette::ToolTipBase));
  drawPlate(painter, option.rect, 0, palette.color(QPalette::ToolTipBase), palette.color(QPalette::Mid));
  return true;
}

bool drawNothing(QPainter&, const QStyleOption&, const QWidget*) { return true; }

}  // namespace tarvo
