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

TEST(TechDicController, theFilterHidesRowsAndChangesNoTick) {
  PickerWorld world;
  world.controller.setNotSelectedArray(Names{"Law.TRet", "cwl", "Medical LAW.TRet", "Physics.TRet"}, technical);
  world.tick({0, 3});
  TableView& table = world.picker.techDicTable;
  const auto shown = [&] {
    std::vector<int> rows;
    for (int row = 0; row < table.numberOfRows(); ++row) {
      if (table.isRowShown(row)) rows.push_back(row);
    }
    return rows;
  };
  world.picker.filterField.userType("law");
  EXPECT_EQ(shown(), (std::vector<int>{0, 2}));
  world.picker.filterField.userType("corwell");
  EXPECT_EQ(shown(), std::vector<int>{1}) << "names are looked into as they are shown";
  EXPECT_EQ(world.controller.getCheckedArray(technical), (Names{"Law.TRet", "Physics.TRet"}));
  table.userTick(0, false);
  EXPECT_EQ(world.controller.getCheckedArray(technical).size(), 2U) << "a hidden row is out of reach";
  world.picker.filterField.userType("");
  EXPECT_EQ(shown().size(), 4U);
}

TEST(TechDicController, opensWithoutAFilter) {
  PickerWorld world;
  world.controller.setNotSelectedArray(Names{"a", "b"}, technical);
  world.picker.filterField.userType("a");
  world.controller.openEJList();
  EXPECT_EQ(world.picker.filterField.stringValue(), "");
  EXPECT_TRUE(world.picker.techDicTable.isRowShown(1));
}

TEST(TechDicController, selectsAllThatIsShownAndUnselectsAll) {
  PickerWorld world;
  world.controller.setNotSelectedArray(Names{"aa", "b", "ab", "c"}, technical);
  world.tick({3});
  world.picker.filterField.userType("A");
  world.controller.selectShown();
  EXPECT_EQ(world.controller.getCheckedArray(technical), (Names{"aa", "ab", "c"}));
  world.controller.selectNone();
  EXPECT_EQ(world.controller.getCheckedArray(technical), Names{});
}

TEST(TechDicController, tellsHowManyStillFit) {
  PickerWorld world;
  world.setText("PickerRoom", "room ");
  world.setText("PickerRoomOver", "over ");
  const auto text = [&] { return world.picker.roomText.stringValue(); };
  world.controller.setNotSelectedArray(Names{"a", "b", "c"}, technical);
  world.controller.setRoom(2);
  EXPECT_EQ(text(), "room 2");
  world.tick({0, 1});
  EXPECT_EQ(text(), "room 0");
  world.controller.selectShown();
  EXPECT_EQ(text(), "over 1");
  world.controller.selectNone();
  EXPECT_EQ(text(), "room 2");
}

TEST(TechDicController, showsTheTextsOfTheKindOnItsSheet) {
  PickerWorld world;
  for (const char* key : {"NewUDText", "NewTMAText", "UDFolderName", "UDFolderNameTitle", "UserTMAFolderName",
                          "UserTMAFolderNameTitle"}) {
    world.setText(key, "«" + std::string(key) + "»");
  }
  world.host.whileModal = [&](Window&) {
    const auto texts = [&] {
      return Names{world.picker.newDicTitleField.stringValue(), world.picker.newDicFolderNameField.stringValue(),
                   world.picker.newDicFolderTitleField.stringValue()};
    };
    const auto open = [&](int tag) {
      world.picker.newDicNameField.setStringValue("old");
      world.controller.newUD(tag);
      EXPECT_EQ(world.windows.sheetOver(world.picker.myWindow), &world.picker.newDicWindow);
      EXPECT_EQ(world.picker.newDicNameField.stringValue(), "");
      EXPECT_EQ(world.controller.direction(), JE);
      EXPECT_FALSE(world.flags.gMenuControllFlag);
      world.controller.newDicCancelButtonAction();
    };
    open(2);
    EXPECT_EQ(texts(), (Names{"«NewUDText»", "«UDFolderName»", "«UDFolderNameTitle»"}));
    open(3);
    const Names memory{"«NewTMAText»", "«UserTMAFolderName»", "«UserTMAFolderNameTitle»"};
    EXPECT_EQ(texts(), memory);
    open(5);
    EXPECT_EQ(texts(), memory) << "another kind leaves the texts";
    EXPECT_EQ(world.controller.request().kind, std::nullopt);
  };
  world.controller.openJEList();
}

TEST(TechDicController, postsTheNameOfItsSheetWhenTheSheetIsGone) {
  PickerWorld world;
  world.createsOnNotification = false;
  world.controller.openJEList();
  world.controller.newUD(2);
  world.picker.newDicNameField.userType("P");
  world.takeLog();
  world.controller.newDicOKButtonAction();
  EXPECT_EQ(world.takeLog(), (Log{"sheet ended 1", "posted P.jud"}));
  EXPECT_FALSE(world.picker.newDicWindow.isShown());
}

TEST(TechDicController, cancellingItsSheetChecksAndPostsNothing) {
  PickerWorld world;
  world.controller.newUD(2);
  world.picker.newDicNameField.userType(" a/b ");
  world.takeLog();
  world.controller.newDicCancelButtonAction();
  EXPECT_EQ(world.takeLog(), Log{"sheet ended 0"});
  EXPECT_EQ(world.picker.newDicNameField.stringValue(), " a/b ");
}

TEST(TechDicController, aCreatedDictionaryReplacesTheFirstOfItsNameAndIsSortedByLetterCase) {
  PickerWorld world;
  world.controller.setNotSelectedArray(Names{"b", "A"}, user);
  world.takeLog();
  world.controller.setCreatedDictionary("B", user);
  EXPECT_EQ(world.takeLog(), Log{"reload picker.UserDicTable"});
  EXPECT_EQ(world.controller.getCheckedArray(user), Names{"B"});
  const auto names = [&](TableView& table, int count) {
    Names all;
    for (int row = 0; row < count; ++row) {
      all.push_back(world.controller.objectValueForTableColumn(table, "dicName", row).text);
    }
    return all;
  };
  EXPECT_EQ(names(world.picker.UserDicTable, 3), (Names{"A", "B", ""}));

  world.controller.setNotSelectedArray(Names{"b", "B"}, memory);
  world.controller.setCreatedDictionary("b", memory);
  EXPECT_EQ(names(world.picker.UserTMATable, 2), (Names{"B", "b"}));
  EXPECT_EQ(world.controller.getCheckedArray(memory), Names{"b"}) << "the second of the name stays unticked";
  world.controller.setCreatedDictionary("a", memory);
  EXPECT_EQ(names(world.picker.UserTMATable, 3), (Names{"B", "a", "b"}));
}

TEST(TechDicController, aCreatedDictionaryOfAnotherKindIsLost) {
  PickerWorld world;
  world.controller.setCreatedDictionary("m", technical);
  EXPECT_EQ(world.takeLog(), Log{});
  for (const DictionaryKind kind : {technical, user, memory})
    EXPECT_EQ(world.controller.getCheckedArray(kind), Names{});
}

TEST(TechDicController, aRunningDictionaryToolIsToldAfterTheListHasChanged) {
  PickerWorld world;
  world.workspace.running = {world.paths.tarvoPathGetAppleyPath(4).text()};
  ASSERT_FALSE(world.workspace.running.front().empty());
  EXPECT_TRUE(world.controller.isStartedApplication(4));
  world.controller.setCreatedDictionary("m", user);
  EXPECT_EQ(world.takeLog(),
            (Log{"reload picker.UserDicTable", "beep", "alert isLaunchingUDAlertHeader / isLaunchingUDAlertContents"}));
  EXPECT_EQ(world.controller.getCheckedArray(user), Names{"m"});
  world.controller.setCreatedDictionary("m", memory);
  EXPECT_EQ(world.takeLog(), Log{"reload picker.UserTMATable"});
  world.workspace.running.clear();
  world.controller.setCreatedDictionary("n", user);
  EXPECT_EQ(world.takeLog(), Log{"reload picker.UserDicTable"});
}

}  // namespace
}  // namespace tarvo::test
