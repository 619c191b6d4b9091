// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QHeaderView>
#include <QStyleOptionHeader>
#include <QStyleOptionViewItem>
#include <QTableView>
#include <QWidget>

#include "qt/look/draw.h"
#include "qt/look/metrics.h"
#include "qt/look/plate.h"

namespace tarvo {
namespace {

QColor rowPlate(const QStyleOption& option, const QWidget* view) {
  const QColor base = option.palette.color(QPalette::Base);
  if (!option.state.testFlag(QStyle::State_Selected)) return {};
  // Calm: the text keeps its colour, and a list without the keyboard steps back.
  const bool hasKeyboard = view && view->hasFocus() && option.state.testFlag(QStyle::State_Active);
  return hasKeyboard ? mixed(base, option.palette.color(QPalette::Highlight), 0.16)
                     : mixed(base, option.palette.color(QPalette::Text), 0.1);
}

// The places of the visible columns before and behind a cell decide where the plate of its row goes on.
struct Neighbours {
  bool before = false, behind = false;
};

Neighbours neighbours(const QStyleOptionViewItem& cell, const QWidget* widget) {
  const auto* table = qobject_cast<const QTableView*>(widget);
  if (!table || table->selectionBehavior() != QAbstractItemView::SelectRows) return {};
  const QHeaderView& header = *table->horizontalHeader();
  const int place = header.visualIndex(cell.index.column());
  return {place > 0, place < header.count() - 1};
}

// A chosen row is one plate over all its cells: each draws its part of it.
QRectF sharedPlate(const QStyleOptionViewItem& cell, const QWidget* widget) {
  const double beyond = 2 * metrics::controlRadius;
  const Neighbours goesOn = neighbours(cell, widget);
  return QRectF(cell.rect).adjusted(goesOn.before ? -beyond : 0, 0, goesOn.behind ? beyond : 0, 0);
}

}  // namespace

bool drawCellBackground(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  const auto* cell = qstyleoption_cast<const QStyleOptionViewItem*>(&option);
  if (!cell) return false;
  if (cell->backgroundBrush.style() != Qt::NoBrush) painter.fillRect(cell->rect, cell->backgroundBrush);
  const QColor plate = rowPlate(option, widget);
  if (!plate.isValid()) return true;
  painter.save();
  painter.setClipRect(cell->rect, Qt::IntersectClip);
  drawPlate(painter, sharedPlate(*cell, widget), metrics::controlRadius - 1, plate);
  painter.restore();
  return true;
}

bool drawDropMark(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const QColor accent = option.palette.color(QPalette::Highlight);
  const QRectF mark = option.rect;
  if (mark.isNull()) return true;
  if (mark.height() > 1) {  // on a row
    drawPlate(painter, mark.adjusted(1, 1, -1, -1), metrics::controlRadius - 1, Qt::transparent, accent);
    return true;
  }
  const double y = qMax(mark.top(), 3.0);  // the knob stays whole above the first row
  painter.fillRect(snapped(painter, QRectF(mark.left() + 6, y - 1, mark.width() - 6, 2)), accent);
  drawPlate(painter, QRectF(mark.left(), y - 3, 6, 6), 3, option.palette.color(QPalette::Base), accent);
  return true;
}

bool drawHeaderSection(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(&option);
  drawHeaderRest(painter, option, nullptr);
  const bool isLast =
      !header || header->position == QStyleOptionHeader::End || header->position == QStyleOptionHeader::OnlyOneSection;
  if (isLast) return true;
  const QRectF rect = option.rect;
  const double inset = rect.height() / 4;
  const QRectF divider(rect.right() - lineWidth(painter), rect.top() + inset, lineWidth(painter),
                       rect.height() - 2 * inset);
  painter.fillRect(snapped(painter, divider), option.palette.color(QPalette::Mid));
  return true;
}

bool drawHeaderRest(QPainter& painter, const QStyleOption& option, const QWidget*) {
  painter.fillRect(option.rect, option.palette.color(QPalette::Base));
  drawHorizontalLine(painter, option.rect, option.palette.color(QPalette::Mid));
  return true;
}

bool drawHeaderLabel(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(&option);
  if (!header || !header->icon.isNull()) return false;
  const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
  const auto role = isEnabled ? QPalette::PlaceholderText : QPalette::Text;
  drawLabel(painter, option.rect, static_cast<int>(header->textAlignment) | Qt::AlignVCenter, header->text,
            option.palette.color(role));
  return true;
}

}  // namespace tarvo
