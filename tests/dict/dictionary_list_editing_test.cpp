// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_list_editing.h"

#include <gtest/gtest.h>

#include "tests/dict/list_buttons.h"
#include "tests/dict/style_pane_world.h"

namespace tarvo::test {
namespace {

const Names abc{"a.TRet", "b.TRet", "c.TRet"};

Names numbered(int count) {
  Names names;
  for (int i = 0; i < count; ++i) names.push_back("n" + std::to_string(10 + i) + ".TRet");
  return names;
}

TEST(DictionaryListEditing, eachDirectionHasItsListAndItsTable) {
  StylePaneWorld world;
  EXPECT_EQ(&world.editing.getActiveDictController(EJ), &world.editing.ejTDController());
  EXPECT_EQ(&world.editing.getActiveTableView(EJ), &world.outlets.ejTDTable);
  EXPECT_EQ(&world.editing.getActiveDictController(JE), &world.editing.jeTDController());
  EXPECT_EQ(&world.editing.getActiveTableView(JE), &world.outlets.jeTDTable);
}

struct ButtonCase {
  int rows, selected;
  Buttons buttons;
};

class ButtonStates : public testing::TestWithParam<ButtonCase> {};

TEST_P(ButtonStates, followTheSelectedRowAndTheNumberOfRows) {
  for (const Direction direction : bothDirections) {
    StylePaneWorld world;
    world.openWithLists(numbered(GetParam().rows), numbered(GetParam().rows));
    world.editing.getActiveTableView(direction).selectRows({GetParam().selected});
    muddle(world.outlets);
    world.editing.updateButton(direction);
    EXPECT_EQ(direction == EJ ? ejButtons(world.outlets) : jeButtons(world.outlets), GetParam().buttons);
    EXPECT_EQ(direction == EJ ? jeButtons(world.outlets) : ejButtons(world.outlets), muddled);
  }
}

INSTANTIATE_TEST_SUITE_P(
    DictionaryListEditing, ButtonStates,
    testing::Values(ButtonCase{3, 0, {true, false, true, true}}, ButtonCase{3, 1, {true, true, true, true}},
                    ButtonCase{3, 2, {true, true, false, true}}, ButtonCase{3, -1, {true, false, false, false}},
                    ButtonCase{1, 0, {true, false, false, true}}, ButtonCase{0, -1, {true, false, false, false}},
                    ButtonCase{7, -1, {true, false, false, false}}, ButtonCase{8, -1, {false, false, false, false}},
                    ButtonCase{9, 4, {false, true, true, true}}));

TEST(UpdatingButtons, ofOneDirectionByTheTableOfTheOther) {
  StylePaneWorld world;
  world.openWithLists(abc, {"j.TRet"});
  world.outlets.jeTDTable.selectRows({0});
  muddle(world.outlets);
  world.editing.updateButton(EJ, JE);
  EXPECT_EQ(ejButtons(world.outlets), (Buttons{true, false, false, true})) << "of the Japanese table's one row";
  EXPECT_EQ(jeButtons(world.outlets), muddled);
}

TEST(MovingARow, upSelectsItAtItsNewPlaceAndSaves) {
  StylePaneWorld world;
  world.openWithLists(abc, {});
  world.outlets.ejTDTable.selectRows({2});
  world.editing.raiseUpTD(0);
  const Names moved{"a.TRet", "c.TRet", "b.TRet"};
  EXPECT_EQ(loadedOf(world.editing.ejTDController()), moved);
  EXPECT_EQ(world.outlets.ejTDTable.selectedRows(), std::vector<int>{1});
  EXPECT_EQ(world.writes, 1);
  EXPECT_EQ(world.listOnDisk(keyNameEJ), arrayOf(moved));
  EXPECT_EQ(ejButtons(world.outlets), (Buttons{true, true, true, true}));
}

TEST(MovingARow, downToTheEndTurnsTheDownButtonOff) {
  StylePaneWorld world;
  world.openWithLists({}, abc);
  world.outlets.jeTDTable.selectRows({1});
  world.editing.raiseDownTD(1);
  EXPECT_EQ(world.listOnDisk(keyNameJE), (Array{"a.TRet", "c.TRet", "b.TRet"}));
  EXPECT_EQ(world.outlets.jeTDTable.selectedRows(), std::vector<int>{2});
  EXPECT_EQ(jeButtons(world.outlets), (Buttons{true, true, false, true}));
}

TEST(MovingARow, updatesTheButtonsAfterTheSave) {
  StylePaneWorld world;
  world.openWithLists(abc, {});
  world.outlets.ejTDTable.selectRows({1});
  world.store.didWrite = [&] { muddle(world.outlets); };
  world.editing.raiseUpTD(0);
  EXPECT_EQ(ejButtons(world.outlets), (Buttons{true, false, true, true}));
  world.editing.removeTD(0);
  EXPECT_EQ(ejButtons(world.outlets), (Buttons{true, false, true, true}));
}

TEST(MovingARow, withoutARowOrBeyondAnEndDoesNothing) {
  StylePaneWorld world;
  world.openWithLists(abc, {});
  world.editing.raiseUpTD(0);
  world.editing.raiseDownTD(0);
  world.editing.removeTD(0);
  world.editing.raiseUpTD(1);
  world.outlets.ejTDTable.selectRows({0});
  world.editing.raiseUpTD(0);
  world.outlets.ejTDTable.selectRows({2});
  world.editing.raiseDownTD(0);
  EXPECT_EQ(loadedOf(world.editing.ejTDController()), abc);
  EXPECT_EQ(world.writes, 0);
}

TEST(MovingARow, ofATableThatShowsMoreThanIsLoadedDoesNothing) {
  StylePaneWorld world;
  world.openWithLists(abc, {});
  world.outlets.ejTDTable.selectRows({2});
  world.take("b.TRet");
  world.editing.ejTDController().updateAllDictionary();
  world.editing.raiseUpTD(0);
  world.editing.removeTD(0);
  EXPECT_EQ(loadedOf(world.editing.ejTDController()), (Names{"a.TRet", "c.TRet"}));
  EXPECT_EQ(world.writes, 0);
}

TEST(RemovingARow, keepsThePlaceSelectedWhileThereIsARowAtIt) {
  StylePaneWorld world;
  world.openWithLists(abc, {});
  world.outlets.ejTDTable.selectRows({1});
  world.editing.removeTD(0);
  EXPECT_EQ(world.listOnDisk(keyNameEJ), (Array{"a.TRet", "c.TRet"}));
  EXPECT_EQ(world.writes, 1);
  EXPECT_EQ(world.outlets.ejTDTable.selectedRow(), 1);
  EXPECT_EQ(ejButtons(world.outlets), (Buttons{true, true, false, true}));
}

TEST(RemovingARow, atTheEndLeavesNothingSelected) {
  StylePaneWorld world;
  world.openWithLists(abc, {});
  world.outlets.ejTDTable.selectRows({2});
  world.editing.removeTD(0);
  EXPECT_EQ(world.outlets.ejTDTable.selectedRow(), -1);
  EXPECT_EQ(ejButtons(world.outlets), (Buttons{true, false, false, false}));
}

TEST(RemovingARow, thatIsTheOnlyOneRemovesTheListFromTheStyle) {
  StylePaneWorld world;
  world.openWithLists({}, {"a.TRet"});
  world.outlets.jeTDTable.selectRows({0});
  world.editing.removeTD(1);
  EXPECT_EQ(world.listOnDisk(keyNameJE), Array{"(absent)"});
  EXPECT_EQ(world.outlets.jeTDTable.reportedRows(), -1);
  EXPECT_EQ(world.outlets.jeTDTable.numberOfRows(), 0);
  EXPECT_EQ(jeButtons(world.outlets), (Buttons{true, false, false, false}));
}

TEST(RemovingARow, turnsLoadingOnOnlyBelowTheLimit) {
  StylePaneWorld world;
  world.openWithLists(numbered(10), {});
  for (const bool canLoad : {false, false, true}) {
    world.outlets.ejTDTable.selectRows({0});
    world.editing.removeTD(0);
    EXPECT_EQ(world.outlets.ejLoadDicButton.isEnabled(), canLoad) << world.outlets.ejTDTable.numberOfRows();
  }
}

TEST(RemovingARow, dropsOthersWhoseFilesWentAway) {
  StylePaneWorld world;
  world.openWithLists(abc, {});
  world.take("c.TRet");
  world.outlets.ejTDTable.selectRows({0});
  world.editing.removeTD(0);
  EXPECT_EQ(world.listOnDisk(keyNameEJ), Array{"b.TRet"});
}

TEST(ChoosingATab, ofADirectionShowsItAndOfAKindKeepsIt) {
  StylePaneWorld world;
  world.openWithLists(abc, abc);
  const auto choose = [&](const char* key) { world.editing.didSelectTabViewItem(world.texts.localized(key)); };
  EXPECT_EQ(world.editing.shownDirection(), EJ);
  choose("JETab");
  EXPECT_EQ(world.editing.shownDirection(), JE);
  for (const char* kind : {"UDTab", "UTMATab", "TDTab"}) {
    choose(kind);
    EXPECT_EQ(world.editing.shownDirection(), JE) << kind;
  }
  choose("EJTab");
  EXPECT_EQ(world.editing.shownDirection(), EJ);
}

TEST(ChoosingATab, updatesTheButtonsOfItsDirection) {
  StylePaneWorld world;
  world.openWithLists(abc, abc);
  muddle(world.outlets);
  world.editing.didSelectTabViewItem(world.texts.localized("JETab"));
  EXPECT_EQ(jeButtons(world.outlets), (Buttons{true, false, false, false}));
  EXPECT_EQ(ejButtons(world.outlets), muddled);
  world.editing.didSelectTabViewItem(world.texts.localized("EJTab"));
  EXPECT_EQ(ejButtons(world.outlets), (Buttons{true, false, false, false}));
}

TEST(ChoosingATab, knowsItByItsTextAndNotByItsKey) {
  StylePaneWorld world;
  world.openWithLists(abc, abc);
  world.editing.didSelectTabViewItem("JETab");
  EXPECT_EQ(world.editing.shownDirection(), EJ);
  world.editing.didSelectTabViewItem("something else");
  EXPECT_EQ(world.editing.shownDirection(), EJ);
}

}  // namespace
}  // namespace tarvo::test
