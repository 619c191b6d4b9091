// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_table.h"

#include <gtest/gtest.h>

#include "dict/display_names.h"
#include "tests/dict/style_pane_world.h"

namespace tarvo::test {
namespace {

const Names abcd{"a.TRet", "b.TRet", "c.TRet", "d.TRet"};
using Rows = std::vector<int>;

Pasteboard rowsOnPasteboard(const Array& rows) {
  Pasteboard pasteboard;
  pasteboard.content.set("row", rows);
  return pasteboard;
}

TEST(DictionaryTable, anEmptyListAndAForeignTableAnswerThatThereIsNothingToCount) {
  StylePaneWorld world;
  world.openWithLists({"a.TRet", "b.TRet"}, {});
  EXPECT_EQ(world.table.numberOfRowsInTableView(world.outlets.ejTDTable), 2);
  EXPECT_EQ(world.table.numberOfRowsInTableView(world.outlets.jeTDTable), -1);
  for (const int tag : {2, 5, 20, -1}) {
    world.outlets.ejTDTable.setTag(tag);
    EXPECT_EQ(world.table.numberOfRowsInTableView(world.outlets.ejTDTable), -1) << tag;
    EXPECT_EQ(world.table.objectValueForTableColumn(world.outlets.ejTDTable, "name", 0), CellValue{}) << tag;
  }
}

TEST(DictionaryTable, aRowShowsTheNameWithoutExtensionAndTheDirectionsImage) {
  StylePaneWorld world;
  world.openWithLists({"a.TRet", "a.b.jtd"}, {"j.TRet"});
  EXPECT_EQ(world.outlets.ejTDTable.cell("name", 0), (CellValue{"a", "EJTD16.tif", std::nullopt}));
  EXPECT_EQ(world.outlets.ejTDTable.cell("name", 1), (CellValue{"a.b", "EJTD16.tif", std::nullopt}));
  EXPECT_EQ(world.outlets.jeTDTable.cell("name", 0), (CellValue{"j", "JETD16.tif", std::nullopt}));
}

TEST(DictionaryTable, aRowBeyondTheListShowsNothing) {
  StylePaneWorld world;
  world.openWithLists({"a.TRet", "b.TRet"}, {});
  world.editing.ejTDController().updateDictionary({"a.TRet"});
  EXPECT_EQ(world.outlets.ejTDTable.numberOfRows(), 2) << "a table keeps the rows of its last reload";
  EXPECT_EQ(world.outlets.ejTDTable.cell("name", 1), CellValue{});
  EXPECT_EQ(world.table.objectValueForTableColumn(world.outlets.ejTDTable, "name", -1), CellValue{});
}

TEST(DictionaryTable, displayNamesLoseTheExtensionBeforeTheMedicalNamesAreLookedUp) {
  DictionaryWorld world;
  const std::pair<const char*, const char*> names[] = {{"a.TRet", "a"},
                                                       {"a.b.jtd", "a.b"},
                                                       {"noext", "noext"},
                                                       {".TRet", ".TRet"},
                                                       {"cwl.TRet", "«NameJCorwell6»"},
                                                       {"cwl", "«NameJCorwell6»"},
                                                       {"cwla.TRet", "«NameJCorwellAbbrev»"},
                                                       {"cwla", "«NameJCorwellAbbrev»"},
                                                       {"cwl.TRet.TRet", "«NameECorwell6»"},
                                                       {"cwla.TRet.jtd", "«NameECorwellAbbrev»"},
                                                       {"CWL.TRet", "CWL"}};
  for (const auto& [name, shown] : names) EXPECT_EQ(dictionaryDisplayName(name, world.texts), shown) << name;
}

TEST(DictionaryTable, selectingARowIsAllowedAndUpdatesTheTablesButtons) {
  StylePaneWorld world;
  world.openWithLists({}, {"j.TRet"});
  world.outlets.jeLoadDicButton.setEnabled(false);
  EXPECT_TRUE(world.table.shouldSelectRow(world.outlets.jeTDTable, 0));
  EXPECT_TRUE(world.outlets.jeLoadDicButton.isEnabled());
  world.outlets.jeTDTable.userSelect({0});
  EXPECT_EQ(world.outlets.jeTDTable.selectedRow(), 0);
  EXPECT_TRUE(world.outlets.jeRemoveDicButton.isEnabled());
  world.outlets.jeTDTable.deselectAll();
  EXPECT_FALSE(world.outlets.jeRemoveDicButton.isEnabled());
}

TEST(DraggingRows, carriesTheirNumbers) {
  StylePaneWorld world;
  world.openWithLists(abcd, {});
  const auto pasteboard = world.outlets.ejTDTable.beginDrag({2, 0});
  ASSERT_TRUE(pasteboard);
  EXPECT_EQ(pasteboard->content, rowsOnPasteboard({2, 0}).content);
}

TEST(DraggingRows, mayBeDroppedBetweenRowsOnly) {
  StylePaneWorld world;
  TableView& table = world.outlets.ejTDTable;
  const Pasteboard rows = rowsOnPasteboard({0, 2});
  EXPECT_TRUE(world.table.validateDrop(table, rows, 1, DropOperation::above));
  EXPECT_FALSE(world.table.validateDrop(table, rows, 1, DropOperation::on));
  EXPECT_FALSE(world.table.validateDrop(table, {}, 1, DropOperation::above));
}

struct DropCase {
  const char* description;
  Rows rows;
  int dropRow;
  Array list;
  Rows selected;
};

class DroppedRowsInATable : public testing::TestWithParam<DropCase> {};

TEST_P(DroppedRowsInATable, areMovedSelectedAndSaved) {
  StylePaneWorld world;
  world.openWithLists(abcd, {});
  world.outlets.ejTDTable.selectRows({1});
  EXPECT_TRUE(world.outlets.ejTDTable.userDrag(GetParam().rows, world.outlets.ejTDTable, GetParam().dropRow,
                                               DropOperation::above));
  EXPECT_EQ(arrayOf(loadedOf(world.editing.ejTDController())), GetParam().list);
  EXPECT_EQ(world.outlets.ejTDTable.selectedRows(), GetParam().selected);
  EXPECT_EQ(world.writes, 1);
  EXPECT_EQ(world.listOnDisk(keyNameEJ), GetParam().list);
}

INSTANTIATE_TEST_SUITE_P(
    DictionaryTable, DroppedRowsInATable,
    testing::Values(DropCase{"severalRowsToTheEnd", {0, 2}, 4, {"b.TRet", "d.TRet", "a.TRet", "c.TRet"}, {2, 3}},
                    DropCase{"theLastRowToTheTop", {3}, 0, {"d.TRet", "a.TRet", "b.TRet", "c.TRet"}, {0}},
                    DropCase{"aRowBeforeItself", {1}, 1, {"a.TRet", "b.TRet", "c.TRet", "d.TRet"}, {1}},
                    DropCase{"aRowBehindItself", {1}, 2, {"a.TRet", "b.TRet", "c.TRet", "d.TRet"}, {1}},
                    DropCase{
                        "rowsInTheOrderOfThePasteboard", {2, 0}, 4, {"b.TRet", "d.TRet", "c.TRet", "a.TRet"}, {2, 3}}),
    [](const auto& test) { return test.param.description; });

TEST(DroppingRows, selectsOnlyTheLastOneWhereOneRowCanBeSelected) {
  StylePaneWorld world;
  world.openWithLists(abcd, {});
  world.outlets.ejTDTable.setAllowsMultipleSelection(false);
  EXPECT_TRUE(world.outlets.ejTDTable.userDrag({0, 2}, world.outlets.ejTDTable, 4, DropOperation::above));
  EXPECT_EQ(world.listOnDisk(keyNameEJ), (Array{"b.TRet", "d.TRet", "a.TRet", "c.TRet"}));
  EXPECT_EQ(world.outlets.ejTDTable.selectedRows(), Rows{3});
}

TEST(DroppingRows, dropsDictionariesWhoseFilesWentAway) {
  StylePaneWorld world;
  world.openWithLists(abcd, {});
  world.take("b.TRet");
  EXPECT_TRUE(world.outlets.ejTDTable.userDrag({3}, world.outlets.ejTDTable, 0, DropOperation::above));
  EXPECT_EQ(world.listOnDisk(keyNameEJ), (Array{"d.TRet", "a.TRet", "c.TRet"}));
}

TEST(DroppingRows, isRefusedBeforeAnythingChanges) {
  const Pasteboard bad[] = {{}, rowsOnPasteboard({4}), rowsOnPasteboard({0, -1}), rowsOnPasteboard({0, Data{}}), [] {
                              Pasteboard wrongType;
                              wrongType.content.set("row", "0");
                              return wrongType;
                            }()};
  StylePaneWorld world;
  world.openWithLists(abcd, {});
  TableView& table = world.outlets.ejTDTable;
  table.selectRows({1});
  int looks = 0;
  table.view = [&](Control::Change) { ++looks; };
  for (const Pasteboard& pasteboard : bad) {
    EXPECT_FALSE(world.table.acceptDrop(table, pasteboard, 2, DropOperation::above));
  }
  const Pasteboard good = rowsOnPasteboard({0});
  EXPECT_FALSE(world.table.acceptDrop(table, good, 2, DropOperation::on));
  EXPECT_FALSE(world.table.acceptDrop(table, good, 5, DropOperation::above));
  EXPECT_FALSE(world.table.acceptDrop(table, good, -1, DropOperation::above));
  EXPECT_FALSE(world.table.acceptDrop(world.outlets.jeTDTable, rowsOnPasteboard({}), 0, DropOperation::above))
      << "nothing is loaded there";
  EXPECT_EQ(looks, 0);
  EXPECT_EQ(world.writes, 0);
  EXPECT_EQ(loadedOf(world.editing.ejTDController()), abcd);
  EXPECT_EQ(table.selectedRows(), Rows{1});
}

TEST(DroppingRows, inATableThatIsNotShownMovesItsListButSavesTheShownOne) {
  StylePaneWorld world;
  world.openWithLists({"a.TRet", "b.TRet"}, {"j.TRet", "k.TRet"});
  world.editing.didSelectTabViewItem(world.texts.localized("JETab"));
  world.editing.jeTDController().updateDictionary({"k.TRet"});
  EXPECT_TRUE(world.outlets.ejTDTable.userDrag({1}, world.outlets.ejTDTable, 0, DropOperation::above));
  EXPECT_EQ(loadedOf(world.editing.ejTDController()), (Names{"b.TRet", "a.TRet"}));
  EXPECT_EQ(world.listOnDisk(keyNameEJ), (Array{"a.TRet", "b.TRet"})) << "not what the drop changed";
  EXPECT_EQ(world.listOnDisk(keyNameJE), Array{"k.TRet"});
}

TEST(DroppingRows, fromTheOtherTableTakesTheirNumbersAsOwnRows) {
  StylePaneWorld world;
  world.openWithLists({"a.TRet", "b.TRet"}, {"j.TRet", "k.TRet", "l.TRet"});
  EXPECT_TRUE(world.outlets.jeTDTable.userDrag({1}, world.outlets.ejTDTable, 0, DropOperation::above));
  EXPECT_EQ(loadedOf(world.editing.ejTDController()), (Names{"b.TRet", "a.TRet"}));
  EXPECT_EQ(loadedOf(world.editing.jeTDController()), (Names{"j.TRet", "k.TRet", "l.TRet"}));
  EXPECT_FALSE(world.outlets.jeTDTable.userDrag({2}, world.outlets.ejTDTable, 0, DropOperation::above));
}

}  // namespace
}  // namespace tarvo::test
