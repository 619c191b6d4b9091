// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/user_list_rows.h"

#include <gtest/gtest.h>

#include "tests/dict/picker_world.h"

namespace tarvo::test {
namespace {

const std::string dictionaries = "Library/Application Support/Wordhaven/UserDic/";
const std::string memories = "Library/Application Support/Wordhaven/UserTMA/";

Names shownIn(const TableView& table) {
  Names names;
  for (int row = 0; row < table.numberOfRows(); ++row) names.push_back(table.cell("name", row).text);
  return names;
}

TEST(UserListRows, showTheFilesOfTheirKindAndDirection) {
  PickerWorld world;
  for (const char* name : {"b.eud2", "a.eud2", "j.jud", "x.etm"}) world.folder.write(dictionaries + name, "");
  for (const char* name : {"m.etm", "n.jtm", "y.eud2"}) world.folder.write(memories + name, "");
  world.userLists.setUp();
  for (const auto& [table, twin, names] :
       {std::tuple{&world.tables.ejUDTableView, &world.tables.ejUDTable, Names{"a.eud2", "b.eud2"}},
        std::tuple{&world.tables.ejUTMATableView, &world.tables.ejTMATable, Names{"m.etm"}},
        std::tuple{&world.tables.jeUDTableView, &world.tables.jeUDTable, Names{"j.jud"}},
        std::tuple{&world.tables.jeUTMATableView, &world.tables.jeTMATable, Names{"n.jtm"}}}) {
    table->reloadData();
    EXPECT_EQ(shownIn(*table), names) << table->name();
    twin->reloadData();
    EXPECT_EQ(shownIn(*twin), names) << twin->name();
    EXPECT_EQ(table->cell("name", table->numberOfRows()), CellValue{});
  }
}

TEST(UserListRows, aReloadOfTheTwinReadsTheShownRowsAnew) {
  PickerWorld world;
  world.userLists.setUp();
  world.tables.ejUDTableView.reloadData();
  world.folder.write(dictionaries + "new.eud2", "");
  world.takeLog();
  world.tables.ejUDTable.reloadData();
  EXPECT_EQ(world.takeLog(), (Log{"reload style.ejUDTableView", "reload style.ejUDTable"}));
  EXPECT_EQ(shownIn(world.tables.ejUDTableView), Names{"new.eud2"});
}

TEST(UserListRows, lookingDoesNotChangeWhatTheListsHaveLoaded) {
  PickerWorld world;
  world.userLists.setUp();
  bool isLoaded = false;
  ASSERT_TRUE(world.userLists.ejUDController.createDictionary("a.eud2", isLoaded));
  std::filesystem::remove(world.folder / (dictionaries + "a.eud2"));
  world.tables.ejUDTableView.reloadData();
  EXPECT_EQ(shownIn(world.tables.ejUDTableView), Names{});
  EXPECT_EQ(loadedOf(world.userLists.ejUDController), Names{"a.eud2"});
}

TEST(UserListRows, listsThatWereNeverSetUpShowNothing) {
  PickerWorld world;
  world.folder.write(dictionaries + "a.eud2", "");
  world.tables.ejUDTable.reloadData();
  EXPECT_EQ(world.tables.ejUDTable.reportedRows(), 0);
  EXPECT_EQ(world.tables.ejUDTableView.reportedRows(), 0);
}

}  // namespace
}  // namespace tarvo::test
