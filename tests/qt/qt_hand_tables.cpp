// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QTest>
#include <memory>

#include "qt/bind/registry.h"
#include "qt/bind/table_model.h"
#include "qt/bind/table_widget.h"
#include "tests/qt/qt_hand.h"

// The hand's gestures in lists.
namespace tarvo::test {

namespace {

TableWidget& listOf(const Registry& registry, const TableView& table) {
  auto* found = registry.find<TableWidget>(table.name());
  if (found == nullptr) throw NotReachable(table.name() + " has no such widget");
  return *found;
}

// The middle of a cell, scrolled into sight.
QPoint placeOf(TableWidget& list, int row, int column = 0) {
  const QModelIndex index = list.model()->index(row, column);
  if (!index.isValid()) throw NotReachable(list.objectName().toStdString() + " has no row " + std::to_string(row));
  if (list.isRowHidden(row)) throw NotReachable("the filter hides row " + std::to_string(row));
  list.scrollTo(index);
  return list.visualRect(index).center();
}

// Beside its box.
void clickRow(TableWidget& list, int row, Qt::KeyboardModifiers modifiers) {
  const QPoint place = placeOf(list, row, list.rows().checkColumn() == 0 ? 1 : 0);
  requireInReach(*list.viewport(), place);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, place);
}

// The gap above a row; below the last one for the row after it.
QPoint gapAbove(TableWidget& list, int row) {
  const int rows = list.model()->rowCount();
  if (row < rows) return {placeOf(list, row).x(), list.visualRect(list.model()->index(row, 0)).top() + 1};
  if (rows == 0) return list.viewport()->rect().center();
  return {placeOf(list, rows - 1).x(), list.visualRect(list.model()->index(rows - 1, 0)).bottom() - 1};
}

void drop(TableWidget& list, const QMimeData& rows, QPoint place) {
  QDragEnterEvent enter(place, Qt::MoveAction, &rows, Qt::LeftButton, {});
  QApplication::sendEvent(list.viewport(), &enter);
  if (!enter.isAccepted()) return;
  QDragMoveEvent over(place, Qt::MoveAction, &rows, Qt::LeftButton, {});
  QApplication::sendEvent(list.viewport(), &over);
  if (!over.isAccepted()) {
    QDragLeaveEvent leave;
    QApplication::sendEvent(list.viewport(), &leave);
    return;
  }
  QDropEvent dropped(place, Qt::MoveAction, &rows, Qt::LeftButton, {});
  QApplication::sendEvent(list.viewport(), &dropped);
}

}  // namespace

void QtHand::select(TableView& table, const std::vector<int>& rows) {
  if (!table.isLaidOut()) return state_.select(table, rows);
  TableWidget& list = listOf(registry_, table);
  if (rows.size() > 1 && list.selectionMode() == QAbstractItemView::SingleSelection) {
    throw NotReachable(table.name() + " selects one row at a time");
  }
  if (rows.empty()) {
    for (const int row : std::vector<int>(table.selectedRows())) clickRow(list, row, Qt::ControlModifier);
  }
  Qt::KeyboardModifiers modifiers;
  for (const int row : rows) {
    clickRow(list, row, modifiers);
    modifiers = Qt::ControlModifier;
  }
}

void QtHand::tick(TableView& table, int row, bool on) {
  if (!table.isLaidOut()) return state_.tick(table, row, on);
  TableWidget& list = listOf(registry_, table);
  const int column = list.rows().checkColumn();
  const QModelIndex cell = list.model()->index(row, column);
  const QPoint place = placeOf(list, row, column);
  if ((cell.data(Qt::CheckStateRole).toInt() == Qt::Checked) == on) {
    if (!table.isRowSelected(row)) clickRow(list, row, {});
    return;
  }
  requireInReach(*list.viewport(), place);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {list.visualRect(cell).left() + 10, place.y()});
}

// A list offers no row as a target, only the gaps between rows.
void QtHand::drag(TableView& table, const std::vector<int>& rows, TableView& target, int row, DropOperation operation) {
  if (!table.isLaidOut() || !target.isLaidOut()) return state_.drag(table, rows, target, row, operation);
  TableWidget &from = listOf(registry_, table), &to = listOf(registry_, target);
  if (table.selectedRows() != rows) select(table, rows);
  const std::unique_ptr<QMimeData> carried(from.model()->mimeData(from.selectionModel()->selectedIndexes()));
  if (carried == nullptr || operation == DropOperation::on) return;
  const QPoint place = gapAbove(to, row);
  requireInReach(*to.viewport(), place);
  drop(to, *carried, place);
}

}  // namespace tarvo::test
