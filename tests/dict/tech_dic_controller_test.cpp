// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/tech_dic_controller.h"

#include <gtest/gtest.h>

#include "tests/dict/picker_world.h"

namespace tarvo::test {
namespace {

TEST(TechDicController, beginsWithThreeEmptyListsForEnglish) {
  PickerWorld world;
  EXPECT_EQ(world.controller.direction(), EJ);
  EXPECT_EQ(world.controller.request().kind, user);
  EXPECT_EQ(world.controller.request().fDictName, "");
  for (const DictionaryKind kind : {technical, user, memory})
    EXPECT_EQ(world.controller.getCheckedArray(kind), Names{});
  EXPECT_EQ(world.controller.numberOfRowsInTableView(world.picker.techDicTable), 0);
}

TEST(TechDicController, listsTheGivenNamesUntickedAndReadsTheTableOnce) {
  PickerWorld world;
  world.controller.setNotSelectedArray(Names{"x.TRet", "y.TRet"}, technical);
  EXPECT_EQ(world.takeLog(), Log{"reload picker.techDicTable"});
  EXPECT_EQ(world.pickerNames(), (Names{"x.TRet", "y.TRet"}));
  EXPECT_EQ(world.controller.getCheckedArray(technical), Names{});
}

TEST(TechDicController, noNamesKeepTheListAndAnEmptyListEmptiesIt) {
  PickerWorld world;
  world.controller.setNotSelectedArray(Names{"x.TRet"}, technical);
  world.tick({0});
  world.takeLog();
  world.controller.setNotSelectedArray(std::nullopt, technical);
  EXPECT_EQ(world.takeLog(), Log{"reload picker.techDicTable"});
  EXPECT_EQ(world.controller.getCheckedArray(technical), Names{"x.TRet"});
  world.controller.setNotSelectedArray(Names{}, technical);
  EXPECT_EQ(world.picker.techDicTable.reportedRows(), 0);
  EXPECT_EQ(world.controller.getCheckedArray(technical), Names{});
}

TEST(TechDicController, eachKindHasItsOwnListAndTable) {
  PickerWorld world;
  world.controller.setNotSelectedArray(Names{"m"}, user);
  world.controller.setNotSelectedArray(Names{"n"}, memory);
  EXPECT_EQ(world.takeLog(), (Log{"reload picker.UserDicTable", "reload picker.UserTMATable"}));
  const auto nameIn = [&](TableView& table) { return world.controller.objectValueForTableColumn(table, "dicName", 0); };
  EXPECT_EQ(nameIn(world.picker.UserDicTable).text, "m");
  EXPECT_EQ(nameIn(world.picker.UserTMATable).text, "n");
  EXPECT_EQ(nameIn(world.picker.techDicTable), CellValue{});
}

TEST(TechDicController, answersTheCellsOfEachListByItsTableAndNothingElsewhere) {
  PickerWorld world;
  for (const auto& [kind, name] :
       {std::pair{technical, "t.TRet"}, std::pair{user, "u.eud2"}, std::pair{memory, "m.etm"}}) {
    world.controller.setNotSelectedArray(Names{name}, kind);
  }
  world.tick({0});
  world.controller.setCreatedDictionary("v.eud2", user);
  struct Cell {
    TableView& table;
    int row;
    const char* name;
    bool checked;
  };
  for (const Cell& cell :
       {Cell{world.picker.techDicTable, 0, "t.TRet", true}, Cell{world.picker.UserDicTable, 0, "u.eud2", false},
        Cell{world.picker.UserDicTable, 1, "v.eud2", true}, Cell{world.picker.UserTMATable, 0, "m.etm", false}}) {
    const auto value = [&](const char* column) {
      return world.controller.objectValueForTableColumn(cell.table, column, cell.row);
    };
    EXPECT_EQ(value("Value"), (CellValue{"", "", cell.checked})) << cell.name;
    EXPECT_EQ(value("dicName"), (CellValue{cell.name, "", std::nullopt}));
    EXPECT_EQ(value("other"), CellValue{}) << cell.name;
  }
  world.picker.UserDicTable.setTag(7);
  for (const char* column : {"Value", "dicName"}) {
    EXPECT_EQ(world.controller.objectValueForTableColumn(world.picker.UserDicTable, column, 0), CellValue{});
  }
}

TEST(TechDicController, onlyTheTechnicalTableCountsRows) {
  PickerWorld world;
  for (const DictionaryKind kind : {technical, user, memory})
    world.controller.setNotSelectedArray(Names{"a", "b"}, kind);
  EXPECT_EQ(world.picker.techDicTable.reportedRows(), 2);
  EXPECT_EQ(world.picker.UserDicTable.reportedRows(), -1);
  EXPECT_EQ(world.picker.UserTMATable.reportedRows(), -1);
}

TEST(TechDicController, showsMedicalFilesByTheirNamesAndOthersAsTheyStand) {
  PickerWorld world;
  world.controller.setNotSelectedArray(Names{"cwl.TRet", "cwla.TRet", "cwl", "cwla", "CWL.TRet", "a.b.TRet"},
                                       technical);
  EXPECT_EQ(world.pickerNames(), (Names{"«NameECorwell6»", "«NameECorwellAbbrev»", "«NameJCorwell6»",
                                        "«NameJCorwellAbbrev»", "CWL.TRet", "a.b.TRet"}));
  TableView& table = world.picker.techDicTable;
  EXPECT_EQ(table.cell("Value", 0).checked, false);
  EXPECT_EQ(table.cell("other", 0), CellValue{});
  table.setTag(7);
  EXPECT_EQ(table.cell("dicName", 0), CellValue{});
}

TEST(TechDicController, ticksOnlyInTheTechnicalTablesCheckBoxes) {
  PickerWorld world;
  for (const DictionaryKind kind : {technical, user}) world.controller.setNotSelectedArray(Names{"a", "b"}, kind);
  world.takeLog();
  TableView& table = world.picker.techDicTable;
  world.controller.setObjectValue(table, true, "Value", 1);
  EXPECT_EQ(world.takeLog(), Log{"reload picker.techDicTable"});
  world.controller.setObjectValue(table, true, "dicName", 0);
  world.controller.setObjectValue(world.picker.UserDicTable, true, "Value", 0);
  world.controller.setObjectValue(table, true, "Value", 2);
  EXPECT_EQ(world.takeLog(), Log{});
  EXPECT_EQ(world.controller.getCheckedArray(technical), Names{"b"});
  EXPECT_EQ(world.controller.getCheckedArray(user), Names{});
}

TEST(TechDicController, answersTickedFileNamesInListOrder) {
  PickerWorld world;
  world.controller.setNotSelectedArray(Names{"a.TRet", "cwl.TRet", "b.TRet"}, technical);
  world.tick({2, 1});
  EXPECT_EQ(world.controller.getCheckedArray(technical), (Names{"cwl.TRet", "b.TRet"}));
  EXPECT_EQ(world.controller.getCheckedArray(user), Names{});
  world.controller.getCheckedArray(technical).clear();
  EXPECT_EQ(world.controller.getCheckedArray(technical).size(), 2U);
}

struct Opening {
  Direction direction;
  std::string title, heading;
};

TEST(TechDicController, runsModallyForADirectionAndKeepsItsLists) {
  PickerWorld world;
  for (const char* key : {"EJ-TDEdit", "JE-TDEdit", "EJName", "JEName"}) world.setText(key, "«" + std::string(key));
  world.controller.setNotSelectedArray(Names{"a", "b"}, technical);
  world.tick({1});
  for (const Opening& opening : {Opening{EJ, "«EJ-TDEdit", "«EJName"}, Opening{JE, "«JE-TDEdit", "«JEName"}}) {
    world.takeLog();
    world.host.whileModal = [&](Window& window) {
      EXPECT_EQ(window.title(), opening.title);
      EXPECT_EQ(world.picker.TDTitleField.stringValue(), opening.heading);
      EXPECT_EQ(world.controller.direction(), opening.direction);
      opening.direction == EJ ? world.controller.OKButtonAction() : world.controller.CancelButtonAction();
    };
    opening.direction == EJ ? world.controller.openEJList() : world.controller.openJEList();
    EXPECT_EQ(world.takeLog(),
              (Log{"scroll picker.techDicTable 0", "modal picker.myWindow", "hidden picker.myWindow", "modal ended"}));
    EXPECT_FALSE(world.picker.myWindow.isShown());
    EXPECT_EQ(world.controller.getCheckedArray(technical), Names{"b"});
  }
  EXPECT_EQ(world.host.stops, 2);
}

TEST(TechDicController, opensTheFolderOfAKindInTheDirectionItWasOpenedFor) {
  PickerWorld world;
  const std::string english = world.paths.tarvoPathTechnicalDicEngFolderURL().text();
  const std::string japanese = world.paths.tarvoPathTechnicalDicJpnFolderURL().text();
  world.controller.OpenFolder(0);
  world.controller.openJEList();
  world.controller.OpenFolder(0);
  world.controller.openEJList();
  for (const int tag : {0, 1, 2, 3, -1}) world.controller.OpenFolder(tag);
  EXPECT_EQ(world.workspace.opened, (Names{english, japanese, english, world.paths.tarvoPathUserDicFolderURL().text(),
                                           world.paths.tarvoPathUserTmaFolderURL().text()}));
}

}  // namespace
}  // namespace tarvo::test
