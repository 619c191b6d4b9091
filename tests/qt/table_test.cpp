// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <memory>

#include "qt/bind/in_step.h"
#include "qt/bind/table_widget.h"
#include "tests/qt/bound_controls.h"

namespace tarvo {
namespace {

// Rows of a name and a check box, with a note of each call.
class Rows : public TableDataSource, public TableDelegate {
 public:
  int numberOfRowsInTableView(TableView&) override { return names.empty() ? -1 : static_cast<int>(names.size()); }
  CellValue objectValueForTableColumn(TableView&, std::string_view column, int row) override {
    if (row >= static_cast<int>(names.size())) return {};
    if (column == "on") return {.checked = on[static_cast<std::size_t>(row)]};
    return {.text = names[static_cast<std::size_t>(row)], .image = "EJTD16.tif"};
  }
  void setObjectValue(TableView&, bool value, std::string_view, int row) override {
    on[static_cast<std::size_t>(row)] = value;
    calls.push_back("tick " + std::to_string(row));
  }
  bool writeRows(TableView&, const std::vector<int>& rows, Pasteboard& pasteboard) override {
    Array numbers;
    for (const int row : rows) numbers.emplace_back(row);
    pasteboard.content.set("row", std::move(numbers));
    return true;
  }
  bool validateDrop(TableView&, const Pasteboard&, int, DropOperation operation) override {
    return operation == DropOperation::above;
  }
  bool acceptDrop(TableView&, const Pasteboard& pasteboard, int row, DropOperation) override {
    std::string call = "drop";
    for (const PropertyList& number : *pasteboard.content.array("row")) {
      call += " " + std::to_string(number.integerValue());
    }
    calls.push_back(call + " above " + std::to_string(row));
    return true;
  }
  bool shouldSelectRow(TableView&, int row) override { return row != refused; }
  void selectionDidChange(TableView& table) override {
    calls.push_back("selected " + std::to_string(table.selectedRow()));
  }

  std::vector<std::string> names{"a", "b", "c", "d"};
  std::vector<bool> on = std::vector<bool>(100);
  std::vector<std::string> calls;
  int refused = -1;
};

struct TableBinding : testing::Test, test::BoundControls {
  TableBinding() {
    for (TableView* control : {&outlets.table, &outlets.otherTable}) {
      control->setColumns({{.identifier = "name", .icon = true}});
      control->setDataSource(&rows);
      control->setDelegate(&rows);
      control->setAllowsMultipleSelection(true);
      control->registerForDraggedTypes({"row"});
      control->reloadData();
    }
  }
  QTableView& build(int height = 200) { return shown(binder.table(outlets.table, &window), 300, height); }
  QPoint middle(QTableView& view, int row, int column = 0) {
    return view.visualRect(view.model()->index(row, column)).center();
  }
  void withBoxes() { outlets.table.setColumns({{.identifier = "on", .checkBox = true}, {.identifier = "name"}}); }
  std::string inStep() { return outOfStep(binder.registry()); }
  Rows rows;
};

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

TEST_F(TableBinding, aCheckBoxIsReadByTheNameOfItsRow) {
  withBoxes();
  auto& view = build();
  EXPECT_EQ(view.model()->index(1, 0).data(Qt::AccessibleTextRole).toString(), "b");
}

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

TEST_F(TableBinding, scrollsToTheRowThatTheProgramNames) {
  rows.names.assign(100, "name");
  outlets.table.reloadData();
  auto& view = build(120);
  QApplication::processEvents();
  outlets.table.scrollRowToVisible(80);
  EXPECT_TRUE(view.viewport()->rect().intersects(view.visualRect(view.model()->index(80, 0))));
}

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
  for (QImage copy : {before, during})
    EXPECT_EQ(copy.copy(0, 0, copy.width(), line.top()), before.copy(0, 0, copy.width(), line.top()));
  EXPECT_NE(during.copy(line), before.copy(line));
  QDragLeaveEvent leave;
  QApplication::sendEvent(view.viewport(), &leave);
  EXPECT_EQ(view.viewport()->grab().toImage(), before);
}

TEST_F(TableBinding, aWrongSelectionIsOutOfStep) {
  auto& view = build();
  const QSignalBlocker quiet(view.selectionModel());
  view.selectRow(1);
  EXPECT_EQ(inStep(), "test.table: selected rows \"\", shown \"1 \"");
}

}  // namespace
}  // namespace tarvo
