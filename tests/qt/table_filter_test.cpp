// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QTest>

#include "tests/qt/table_fixture.h"

namespace tarvo::test {
namespace {

struct FilteredTable : TableBinding {
  // Shows the rows with an even number.
  FilteredTable() {
    outlets.table.setRowFilter([this](int row) { return row % 2 == 0; });
  }
};

TEST_F(FilteredTable, rowsThatTheFilterRefusesAreHiddenAndCount) {
  auto& view = build();
  EXPECT_EQ(view.model()->rowCount(), 4);
  EXPECT_FALSE(view.isRowHidden(2));
  EXPECT_TRUE(view.isRowHidden(3));
  rows.names = {"a", "b", "c", "d", "e", "f"};
  outlets.table.reloadData();
  EXPECT_FALSE(view.isRowHidden(4));
  EXPECT_TRUE(view.isRowHidden(5));
  outlets.table.setRowFilter({});
  EXPECT_FALSE(view.isRowHidden(5));
  EXPECT_EQ(inStep(), "");
}

TEST_F(FilteredTable, theKeyboardAndSelectingAllPassOverHiddenRows) {
  auto& view = build();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle(view, 0));
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(outlets.table.selectedRows(), std::vector{2});
  view.selectAll();
  EXPECT_EQ(outlets.table.selectedRows(), (std::vector{0, 2}));
  EXPECT_EQ(inStep(), "");
}

TEST_F(FilteredTable, aRowThatWasHiddenUnderTheKeyboardIsNotTicked) {
  outlets.table.setRowFilter({});
  withBoxes();
  auto& view = build();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle(view, 1, 1));
  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_TRUE(rows.on[1]);
  outlets.table.setRowFilter([](int row) { return row % 2 == 0; });
  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_TRUE(rows.on[1]);
  EXPECT_EQ(inStep(), "");
}

TEST_F(FilteredTable, aShownRowThatShouldBeHiddenIsOutOfStep) {
  auto& view = build();
  view.setRowHidden(1, false);
  EXPECT_EQ(inStep(), "test.table: row shown no, shown yes");
}

}  // namespace
}  // namespace tarvo::test
