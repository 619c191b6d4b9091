// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTableView>
#include <memory>

#include "tests/qt/table_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(TableBinding, draggedRowsAreHandedOverAscending) {
  auto& view = build();
  outlets.table.selectRows({2, 0});
  QModelIndexList indexes{view.model()->index(2, 0), view.model()->index(0, 0)};
  const std::unique_ptr<QMimeData> data(view.model()->mimeData(indexes));
  ASSERT_NE(data, nullptr);
  const QRect last = view.visualRect(view.model()->index(3, 0));
  const QPointF lowerHalf(last.left() + 5, last.bottom() - 2);
  for (const QPointF at : {lowerHalf, QPointF(last.left() + 5, last.top() + 2)}) {
    QDragEnterEvent enter(at.toPoint(), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &enter);
    QDragMoveEvent move(at.toPoint(), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &move);
    EXPECT_TRUE(move.isAccepted());
    QDropEvent drop(at, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &drop);
    EXPECT_TRUE(drop.isAccepted());
  }
  rows.calls.erase(rows.calls.begin());  // the selection
  EXPECT_EQ(rows.calls, (std::vector<std::string>{"drop 0 2 above 4", "drop 0 2 above 3"}));
  EXPECT_EQ(view.model()->rowCount(), 4);
}

TEST_F(TableBinding, aDropOntoARowIsLeftToTheSource) {
  auto& view = build();
  const std::unique_ptr<QMimeData> data(view.model()->mimeData({view.model()->index(0, 0)}));
  EXPECT_FALSE(view.model()->canDropMimeData(data.get(), Qt::MoveAction, -1, -1, view.model()->index(1, 0)));
  EXPECT_TRUE(view.model()->canDropMimeData(data.get(), Qt::MoveAction, -1, -1, {}));
}

TEST_F(TableBinding, whatAnotherProgramDragsIsRefused) {
  auto& view = build();
  QMimeData foreign;
  foreign.setData("row", "0");
  EXPECT_FALSE(view.model()->canDropMimeData(&foreign, Qt::MoveAction, 0, 0, {}));
}

TEST_F(TableBinding, rowsGoFromOneTableToAnother) {
  build();
  auto& other = shown(binder.table(outlets.otherTable, &window));
  const std::unique_ptr<QMimeData> data(other.model()->mimeData({other.model()->index(1, 0)}));
  auto* first = binder.registry().find<QTableView>("test.table");
  EXPECT_TRUE(first->model()->dropMimeData(data.get(), Qt::MoveAction, 0, 0, {}));
  EXPECT_EQ(rows.calls, std::vector<std::string>{"drop 1 above 0"});
}

// The drop goes behind the last row; a line there says so.
TEST_F(TableBinding, aDragBelowTheLastRowIsMarkedThere) {
  auto& view = build(300);
  const std::unique_ptr<QMimeData> data(view.model()->mimeData({view.model()->index(0, 0)}));
  const QPoint below(60, view.viewport()->height() - 5);
  const QImage before = view.viewport()->grab().toImage();
  QDragEnterEvent enter(below, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view.viewport(), &enter);
  QDragMoveEvent move(below, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view.viewport(), &move);
  const QImage during = view.viewport()->grab().toImage();
  EXPECT_NE(during, before);
  const int end = view.visualRect(view.model()->index(3, 0)).bottom() + 1;
  const QRect line(0, end - 4, before.width(), 8);
  for (const QImage& copy : {before, during})
    EXPECT_EQ(copy.copy(0, 0, copy.width(), line.top()), before.copy(0, 0, copy.width(), line.top()));
  EXPECT_NE(during.copy(line), before.copy(line));
  QDragLeaveEvent leave;
  QApplication::sendEvent(view.viewport(), &leave);
  EXPECT_EQ(view.viewport()->grab().toImage(), before);
}

}  // namespace
}  // namespace tarvo::test
