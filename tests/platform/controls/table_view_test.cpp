// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/controls/table_view.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

struct Source : TableDataSource, TableDelegate {
  int rows = 4, counts = 0, refused = -1;
  std::vector<std::string> log;
  int numberOfRowsInTableView(TableView&) override {
    ++counts;
    return rows;
  }
  CellValue objectValueForTableColumn(TableView&, std::string_view column, int row) override {
    return {std::string(column) + std::to_string(row), "", column == "Value" ? std::optional(row == 1) : std::nullopt};
  }
  void setObjectValue(TableView&, bool value, std::string_view column, int row) override {
    log.push_back("set " + std::string(column) + " " + std::to_string(row) + (value ? " on" : " off"));
  }
  bool writeRows(TableView&, const std::vector<int>& dragged, Pasteboard& pasteboard) override {
    pasteboard.content.set("row", Array(dragged.begin(), dragged.end()));
    return true;
  }
  bool validateDrop(TableView&, const Pasteboard&, int, DropOperation operation) override {
    return operation == DropOperation::above;
  }
  bool acceptDrop(TableView&, const Pasteboard& pasteboard, int row, DropOperation) override {
    log.push_back("drop " + std::to_string(pasteboard.content.array("row")->size()) + " at " + std::to_string(row));
    return true;
  }
  bool shouldSelectRow(TableView&, int row) override {
    log.push_back("should " + std::to_string(row));
    return row != refused;
  }
  void selectionDidChange(TableView&) override { log.emplace_back("changed"); }
};

struct TableOutlets : Outlets {
  TableOutlets() : Outlets("some") {}
  TableView table{*this, "table"};
};

class TableViewTest : public testing::Test {
 protected:
  TableViewTest() {
    table_.setColumns({{"Value", true}, {"name"}});
    table_.setDataSource(&source_);
    table_.setDelegate(&source_);
    table_.setAllowsMultipleSelection(true);
    table_.reloadData();
  }
  using Rows = std::vector<int>;
  Source source_;
  TableOutlets outlets_;
  TableView& table_ = outlets_.table;
};

TEST_F(TableViewTest, ofSeveralSelectedRowsTheLastIsTheSelectedRow) {
  EXPECT_EQ(table_.selectedRow(), -1);
  table_.selectRows({3, 1});
  EXPECT_EQ(table_.selectedRow(), 3);
  table_.selectRows({0}, true);
  EXPECT_EQ(table_.selectedRow(), 3);
  source_.rows = 2;
  table_.reloadData();
  EXPECT_EQ(table_.selectedRow(), 1);
}

TEST_F(TableViewTest, asksTheCountOncePerReloadAndReportsMinusOneAsNoRows) {
  EXPECT_EQ(source_.counts, 1);
  EXPECT_EQ(table_.numberOfRows(), 4);
  source_.rows = -1;
  EXPECT_EQ(table_.numberOfRows(), 4);
  table_.reloadData();
  EXPECT_EQ(table_.reportedRows(), -1);
  EXPECT_EQ(table_.numberOfRows(), 0);
}

TEST_F(TableViewTest, keepsTheSelectedRowsThatStillExistAndTellsWhenSomeDoNot) {
  table_.selectRows({1, 3});
  source_.log.clear();
  table_.reloadData();
  EXPECT_TRUE(source_.log.empty());
  source_.rows = 2;
  table_.reloadData();
  EXPECT_EQ(table_.selectedRows(), Rows{1});
  EXPECT_EQ(source_.log, std::vector<std::string>{"changed"});
}

TEST_F(TableViewTest, selectsByProgramWithoutAsking) {
  table_.selectRows({2, 0, 2, 9, -1});
  EXPECT_EQ(table_.selectedRows(), (Rows{0, 2}));
  table_.selectRows({3}, true);
  EXPECT_EQ(table_.selectedRows(), (Rows{0, 2, 3}));
  EXPECT_EQ(source_.log, (std::vector<std::string>{"changed", "changed"}));
}

TEST_F(TableViewTest, selectsOneRowWhereOnlyOneMayBeSelected) {
  table_.setAllowsMultipleSelection(false);
  table_.selectRows({1, 2});
  EXPECT_EQ(table_.selectedRows(), Rows{2});
  table_.selectRows({0}, true);
  EXPECT_EQ(table_.selectedRows(), Rows{0});
}

TEST_F(TableViewTest, asksForEachNewRowAndLeavesAllAsItWasAfterARefusal) {
  table_.userSelect({1});
  source_.refused = 3;
  table_.userSelect({1, 2, 3});
  EXPECT_EQ(table_.selectedRows(), Rows{1});
  EXPECT_EQ(source_.log, (std::vector<std::string>{"should 1", "changed", "should 2", "should 3"}));
}

TEST_F(TableViewTest, setsTheValueOfATickBeforeItSelectsTheRow) {
  table_.userTick(2, true);
  EXPECT_EQ(source_.log, (std::vector<std::string>{"set Value 2 on", "should 2", "changed"}));
  source_.log.clear();
  table_.userTick(2, false);
  EXPECT_EQ(source_.log, std::vector<std::string>{"set Value 2 off"});
  table_.userTick(4, true);
  EXPECT_EQ(source_.log.size(), 1U);
}

TEST_F(TableViewTest, ticksTheColumnOfBoxesWhereverItStands) {
  table_.setColumns({{"name"}, {"Value", true}});
  table_.userTick(2, true);
  EXPECT_EQ(source_.log.front(), "set Value 2 on");
  source_.log.clear();
  table_.setColumns({{"name"}});
  table_.userTick(1, true);
  EXPECT_TRUE(source_.log.empty()) << "there is nothing to tick";
}

TEST_F(TableViewTest, dropsOnlyRegisteredTypesThatTheSourceAccepts) {
  EXPECT_FALSE(table_.userDrag({0, 2}, table_, 4, DropOperation::above));
  table_.registerForDraggedTypes({"row"});
  EXPECT_FALSE(table_.userDrag({0, 2}, table_, 1, DropOperation::on));
  EXPECT_TRUE(table_.userDrag({0, 2}, table_, 4, DropOperation::above));
  EXPECT_EQ(source_.log, std::vector<std::string>{"drop 2 at 4"});
}

TEST_F(TableViewTest, showsNothingForARowBeyondTheLastReload) {
  EXPECT_EQ(table_.cell("name", 3).text, "name3");
  EXPECT_EQ(table_.cell("name", 4), CellValue());
  EXPECT_EQ(table_.cell("name", -1), CellValue());
}

TEST_F(TableViewTest, aFilteredRowStaysARowOutOfTheUsersReach) {
  table_.selectRows({1});
  std::vector<Control::Change> changes;
  table_.view = [&](Control::Change change) { changes.push_back(change); };
  table_.setRowFilter([](int row) { return row > 1; });
  EXPECT_EQ(changes, std::vector{Control::Change::filter});
  EXPECT_EQ(table_.numberOfRows(), 4);
  EXPECT_FALSE(table_.isRowShown(1));
  EXPECT_TRUE(table_.isRowShown(2));
  EXPECT_EQ(table_.selectedRows(), Rows{1}) << "what was selected stays so";
  EXPECT_EQ(table_.cell("name", 0).text, "name0");

  source_.log.clear();
  table_.userTick(0, true);
  table_.userSelect({0});
  EXPECT_EQ(table_.selectedRows(), Rows{});
  table_.userSelect({0, 3});
  EXPECT_EQ(table_.selectedRows(), Rows{3});
  EXPECT_EQ(source_.log, (std::vector<std::string>{"changed", "should 3", "changed"}));
  table_.selectRows({0, 3});
  table_.userSelect({0, 2});
  EXPECT_EQ(table_.selectedRows(), (Rows{0, 2})) << "a hidden row that is selected may stay";

  table_.setRowFilter({});
  EXPECT_TRUE(table_.isRowShown(0));
}

TEST_F(TableViewTest, knowsWhatTheBoxOfARowShows) {
  EXPECT_EQ(table_.tickOf(0), false);
  EXPECT_EQ(table_.tickOf(1), true);
  EXPECT_EQ(table_.tickOf(4), std::nullopt);
  table_.setColumns({{"name"}});
  EXPECT_EQ(table_.tickOf(1), std::nullopt);
}

}  // namespace
}  // namespace tarvo
