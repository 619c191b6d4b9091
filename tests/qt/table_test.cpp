// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

#include "qt/bind/table_widget.h"
#include "tests/qt/table_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(TableBinding, showsTheRowsOfItsSource) {
  auto& view = build();
  ASSERT_EQ(view.model()->rowCount(), 4);
  EXPECT_EQ(view.model()->index(2, 0).data().toString(), "c");
  EXPECT_FALSE(view.model()->index(2, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
  rows.names.clear();
  outlets.table.reloadData();
  EXPECT_EQ(view.model()->rowCount(), 0);
  EXPECT_EQ(inStep(), "");
}

TEST_F(TableBinding, aRowBeyondTheLiveListIsEmpty) {
  auto& view = build();
  rows.names.resize(2);
  EXPECT_EQ(view.model()->index(3, 0).data().toString(), "");
  EXPECT_EQ(view.model()->rowCount(), 4);
}

TEST_F(TableBinding, aReloadKeepsSelectionKeyboardPlaceAndScrolling) {
  rows.names.assign(100, "name");
  outlets.table.reloadData();
  auto& view = build(120);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle(view, 2));
  view.verticalScrollBar()->setValue(40);
  const int scrolled = view.verticalScrollBar()->value();
  rows.names.resize(90);
  rows.calls.clear();
  outlets.table.reloadData();
  EXPECT_EQ(outlets.table.selectedRows(), std::vector{2});
  EXPECT_TRUE(view.selectionModel()->isRowSelected(2, {}));
  EXPECT_EQ(view.currentIndex().row(), 2);
  EXPECT_EQ(view.verticalScrollBar()->value(), scrolled);
  EXPECT_TRUE(rows.calls.empty());
  rows.names.resize(1);
  outlets.table.reloadData();
  EXPECT_EQ(outlets.table.selectedRow(), -1);
  EXPECT_FALSE(view.selectionModel()->hasSelection());
  EXPECT_EQ(inStep(), "");
}

// As assistive tools select: they do not ask whether the table is enabled.
TEST_F(TableBinding, aRowOfATableThatIsOffIsNotMarked) {
  auto& view = build();
  outlets.table.setEnabled(false);
  view.selectRow(1);
  EXPECT_FALSE(view.selectionModel()->hasSelection());
  EXPECT_EQ(inStep(), "");
}

TEST_F(TableBinding, theProgramsSelectionIsShownAndToldOnce) {
  auto& view = build();
  outlets.table.selectRows({1, 3});
  EXPECT_EQ(rows.calls, std::vector<std::string>{"selected 3"});
  EXPECT_TRUE(view.selectionModel()->isRowSelected(1, {}));
  EXPECT_TRUE(view.selectionModel()->isRowSelected(3, {}));
  EXPECT_EQ(inStep(), "");
}

TEST_F(TableBinding, severalRowsAreSelectedByKeyAndMouse) {
  auto& view = build();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle(view, 0));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier, middle(view, 2));
  EXPECT_EQ(outlets.table.selectedRows(), (std::vector{0, 2}));
  QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(outlets.table.selectedRows().back(), 3);
  EXPECT_EQ(inStep(), "");
}

TEST_F(TableBinding, aRefusedSelectionIsTakenBack) {
  auto& view = build();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle(view, 0));
  rows.refused = 2;
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle(view, 2));
  EXPECT_EQ(outlets.table.selectedRows(), std::vector{0});
  EXPECT_EQ(inStep(), "");
}

TEST_F(TableBinding, aTickIsTheEditFirstAndThenTheSelection) {
  withBoxes();
  auto& view = build();
  const QRect cell = view.visualRect(view.model()->index(1, 0));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(cell.left() + 10, cell.center().y()));
  EXPECT_EQ(rows.calls, (std::vector<std::string>{"tick 1", "selected 1"}));
  EXPECT_TRUE(rows.on[1]);
  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_FALSE(rows.on[1]);
  EXPECT_EQ(rows.calls.back(), "tick 1");
  EXPECT_EQ(inStep(), "");
}

TEST_F(TableBinding, aClickBesideABoxSelectsTheRow) {
  withBoxes();
  auto& view = build();
  view.horizontalHeader()->setSectionResizeMode(0, QHeaderView::Fixed);
  view.horizontalHeader()->resizeSection(0, 120);
  const QRect cell = view.visualRect(view.model()->index(2, 0));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(cell.right() - 10, cell.center().y()));
  EXPECT_EQ(rows.calls, std::vector<std::string>{"selected 2"});
  EXPECT_FALSE(rows.on[2]);
  EXPECT_EQ(inStep(), "");
}

TEST_F(TableBinding, aListWithoutRowsSaysWhatItHasNot) {
  auto& view = build();
  auto& list = dynamic_cast<TableWidget&>(view);
  list.setEmptyText("Nothing was found");
  EXPECT_EQ(view.accessibleDescription(), "");
  const QImage full = view.viewport()->grab().toImage();
  rows.names.clear();
  outlets.table.reloadData();
  EXPECT_EQ(view.accessibleDescription(), "Nothing was found");
  const QImage told = view.viewport()->grab().toImage();
  list.setEmptyText("");
  EXPECT_NE(view.viewport()->grab().toImage(), told);
  list.setEmptyText("Nothing was found");
  rows.names = {"a", "b", "c", "d"};
  outlets.table.reloadData();
  EXPECT_EQ(view.accessibleDescription(), "");
  EXPECT_EQ(view.viewport()->grab().toImage(), full);
}

TEST_F(TableBinding, aTextStandsInsteadOfRowsThatAreOutOfReach) {
  auto& view = build();
  const QImage full = view.viewport()->grab().toImage();
  outlets.table.setPlaceholder("It cannot be read");
  EXPECT_EQ(view.accessibleDescription(), "It cannot be read");
  EXPECT_TRUE(view.isRowHidden(0));
  EXPECT_NE(view.viewport()->grab().toImage(), full);
  EXPECT_EQ(inStep(), "");
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.viewport()->rect().center());
  EXPECT_EQ(rows.calls, std::vector<std::string>{});
  outlets.table.setPlaceholder("");
  EXPECT_EQ(view.accessibleDescription(), "");
  EXPECT_EQ(view.viewport()->grab().toImage(), full);
  EXPECT_EQ(inStep(), "");
}

TEST_F(TableBinding, aCheckBoxIsReadByTheNameOfItsRow) {
  withBoxes();
  auto& view = build();
  EXPECT_EQ(view.model()->index(1, 0).data(Qt::AccessibleTextRole).toString(), "b");
}

TEST_F(TableBinding, scrollsToTheRowThatTheProgramNames) {
  rows.names.assign(100, "name");
  outlets.table.reloadData();
  auto& view = build(120);
  QApplication::processEvents();
  outlets.table.scrollRowToVisible(80);
  EXPECT_TRUE(view.viewport()->rect().intersects(view.visualRect(view.model()->index(80, 0))));
}

TEST_F(TableBinding, aWrongSelectionIsOutOfStep) {
  auto& view = build();
  const QSignalBlocker quiet(view.selectionModel());
  view.selectRow(1);
  EXPECT_EQ(inStep(), "test.table: selected rows \"\", shown \"1 \"");
}

}  // namespace
}  // namespace tarvo::test
