// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/iconed_delegate.h"

#include <QApplication>
#include <QPainter>

#include "dict/iconed_cell.h"

namespace tarvo {
namespace {

Rect pointsOf(const QRect& rect) {
  return {static_cast<float>(rect.x()), static_cast<float>(rect.y()), static_cast<float>(rect.width()),
          static_cast<float>(rect.height())};
}

QRect pixelsOf(const Rect& rect) { return {qRound(rect.x), qRound(rect.y), qRound(rect.width), qRound(rect.height)}; }

}  // namespace

IconedPlaces iconedPlaces(const QRect& cell, bool hasIcon) {
  const int iconHeight = qRound(cellIconSize.height);
  const QRect band(cell.x(), cell.y() + (cell.height() - iconHeight) / 2, cell.width(), iconHeight);
  const IconedCell places = iconedCell(pointsOf(band), hasIcon, true);
  // The icon is drawn upwards from its point.
  const Rect icon{places.imageX, places.imageY - cellIconSize.height, cellIconSize.width, cellIconSize.height};
  QRect text = pixelsOf(places.text);
  text.setTop(cell.top());
  text.setBottom(cell.bottom());
  return {hasIcon ? pixelsOf(icon) : QRect(), text};
}

void IconedDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const QIcon icon = cell.icon;
  const QString text = cell.text;
  cell.icon = QIcon();
  cell.text.clear();
  cell.features &= ~(QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasDisplay);
  const QStyle& style = cell.widget != nullptr ? *cell.widget->style() : *QApplication::style();
  style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

  const IconedPlaces places = iconedPlaces(cell.rect, !icon.isNull());
  const bool isEnabled = cell.state.testFlag(QStyle::State_Enabled);
  icon.paint(painter, places.icon, Qt::AlignCenter, isEnabled ? QIcon::Normal : QIcon::Disabled);
  const QString shown = cell.fontMetrics.elidedText(text, cell.textElideMode, places.text.width());
  painter->setFont(cell.font);
  style.drawItemText(painter, places.text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, cell.palette,
                     isEnabled, shown, QPalette::Text);
}

}  // namespace tarvo
