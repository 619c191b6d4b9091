// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QStyleOptionMenuItem>
#include <QWidget>

#include "qt/look/draw.h"
#include "qt/look/metrics.h"
#include "qt/look/plate.h"

namespace tarvo {
namespace {

void drawTick(QPainter& painter, const QRectF& column, const QColor& color) {
  const QPointF centre = column.center();
  const QPointF tick[] = {centre + QPointF(-4, 0.5), centre + QPointF(-1.2, 3.2), centre + QPointF(4.2, -3.4)};
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(tick, 3);
  painter.restore();
}

void drawDivider(QPainter& painter, const QStyleOptionMenuItem& item) {
  QRectF line = QRectF(item.rect).adjusted(metrics::rowGap, 0, -metrics::rowGap, 0);
  line.setBottom(line.center().y() + 0.5);
  drawHorizontalLine(painter, line, item.palette.color(QPalette::Mid));
}

void drawTexts(QPainter& painter, const QStyleOptionMenuItem& item, QRect row, const QColor& ink, const QColor& quiet) {
  if (!item.icon.isNull()) {
    const QRect picture(row.left(), row.center().y() - metrics::cellIcon / 2 + 1, metrics::cellIcon, metrics::cellIcon);
    const bool isEnabled = item.state.testFlag(QStyle::State_Enabled);
    item.icon.paint(&painter, picture, Qt::AlignCenter, isEnabled ? QIcon::Normal : QIcon::Disabled);
    row.setLeft(picture.right() + 1 + metrics::checkBoxGap);
  }
  const QStringList texts = item.text.split(QLatin1Char('\t'));
  drawLabel(painter, row, Qt::AlignLeft | Qt::AlignVCenter, texts.front(), ink);
  if (texts.size() > 1) drawLabel(painter, row, Qt::AlignRight | Qt::AlignVCenter, texts.back(), quiet);
}

}  // namespace

bool drawMenuPlate(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const QPalette& palette = option.palette;
  drawPlate(painter, option.rect, 0, palette.color(QPalette::ToolTipBase), palette.color(QPalette::Mid));
  return true;
}

bool drawMenuItem(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
  if (!item) return false;
  const QPalette& palette = option.palette;
  painter.fillRect(option.rect, palette.color(QPalette::ToolTipBase));
  if (item->menuItemType == QStyleOptionMenuItem::Separator) {
    drawDivider(painter, *item);
    return true;
  }
  const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
  const bool isChosen = isEnabled && option.state.testFlag(QStyle::State_Selected);
  const QRect plate = option.rect.adjusted(metrics::grid, 0, -metrics::grid, 0);
  // A tint, as of a chosen row in a list: icons keep their colours on it.
  const QColor tint = mixed(palette.color(QPalette::ToolTipBase), palette.color(QPalette::Highlight), 0.16);
  if (isChosen) drawPlate(painter, plate, metrics::controlRadius - 1, tint);
  const QColor ink = palette.color(QPalette::Text);
  const QColor quiet = isChosen ? ink : palette.color(QPalette::PlaceholderText);
  painter.setFont(item->font);
  if (item->checked) drawTick(painter, QRect(plate.left(), plate.top(), metrics::menuMark, plate.height()), ink);
  drawTexts(painter, *item, plate.adjusted(metrics::menuMark, 0, -metrics::fieldPadding, 0), ink, quiet);
  if (item->menuItemType == QStyleOptionMenuItem::SubMenu)
    drawChevron(painter, QPointF(plate.right() - metrics::menuMark / 2.0, QRectF(plate).center().y()), 4,
                Qt::RightArrow, quiet);
  return true;
}

bool drawMenuBarItem(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
  if (!item) return false;
  const QPalette& palette = option.palette;
  const QColor pane = palette.color(QPalette::Window), ink = palette.color(QPalette::WindowText);
  painter.fillRect(option.rect, pane);
  if (option.state.testFlag(QStyle::State_Selected)) {
    const QRect plate = option.rect.adjusted(0, 2, 0, -2);
    drawPlate(painter, plate, metrics::controlRadius - 1,
              mixed(pane, ink, option.state.testFlag(QStyle::State_Sunken) ? 0.14 : 0.07));
  }
  drawLabel(painter, option.rect, Qt::AlignCenter, item->text, ink);
  return true;
}

bool drawMenuBar(QPainter& painter, const QStyleOption& option, const QWidget*) {
  painter.fillRect(option.rect, option.palette.color(QPalette::Window));
  return true;
}

}  // namespace tarvo
