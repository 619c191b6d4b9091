// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QIcon>
#include <QStyleOptionToolButton>

#include "qt/look/draw.h"
#include "qt/look/metrics.h"
#include "qt/look/plate.h"

namespace tarvo {

bool drawToolbar(QPainter& painter, const QStyleOption& option, const QWidget*) {
  painter.fillRect(option.rect, option.palette.color(QPalette::Window));
  drawHorizontalLine(painter, option.rect, option.palette.color(QPalette::Mid));
  return true;
}

bool drawToolbarItem(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* item = qstyleoption_cast<const QStyleOptionToolButton*>(&option);
  if (!item || item->toolButtonStyle != Qt::ToolButtonTextUnderIcon) return false;
  drawPlate(painter, option.rect, metrics::cardRadius, pushed(option, option.palette.color(QPalette::Window)));
  const QRect inner = option.rect.adjusted(metrics::grid, 6, -metrics::grid, -metrics::grid);
  QRect picture(QPoint(), item->iconSize);
  picture.moveCenter(QPoint(inner.center().x() + 1, inner.top() + item->iconSize.height() / 2));
  item->icon.paint(&painter, picture, Qt::AlignCenter,
                   is(option, QStyle::State_Enabled) ? QIcon::Normal : QIcon::Disabled);
  const QRect text = inner.adjusted(0, item->iconSize.height() + 2, 0, 0);
  painter.setFont(item->font);
  drawLabel(painter, text, Qt::AlignCenter, item->text,
            option.palette.color(is(option, QStyle::State_On) ? QPalette::Link : QPalette::WindowText));
  if (showsFocus(option)) drawFocusRing(painter, option.rect, metrics::cardRadius, option.palette);
  return true;
}

}  // namespace tarvo
