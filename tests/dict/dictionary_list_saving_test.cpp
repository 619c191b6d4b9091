// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_list_editing.h"

#include <gtest/gtest.h>

#include "tests/dict/style_pane_world.h"

namespace tarvo::test {
namespace {

const Names abc{"a.TRet", "b.TRet", "c.TRet"};

TEST(SavingAList, changesNothingButTheDirectionsDictionaries) {
  StylePaneWorld world;
  world.openWithLists({"b.TRet", "a.TRet"}, {"j.TRet"});
  const Dictionary before = world.styleOnDisk();
  world.editing.ejTDController().updateDictionary({"a.TRet", "b.TRet"});
  world.editing.writeUpdateDicTarvoPlist(EJ);
  EXPECT_EQ(world.writes, 1);
  Dictionary expected = before;
  expected.dictionary(keyNameEJ)->set(keyNameTD, Array{"a.TRet", "b.TRet"});
  EXPECT_EQ(world.styleOnDisk(), expected);
}

TEST(SavingAList, ofTheOtherDirectionLeavesThisOneAlone) {
  StylePaneWorld world;
  world.openWithLists(abc, {"p.TRet", "q.TRet"});
  world.editing.jeTDController().updateDictionary({"q.TRet"});
  world.editing.ejTDController().clearInformation();
  world.editing.writeUpdateDicTarvoPlist(JE);
  EXPECT_EQ(world.listOnDisk(keyNameJE), Array{"q.TRet"});
  EXPECT_EQ(world.listOnDisk(keyNameEJ), arrayOf(abc));
}

TEST(SavingAList, thatIsEmptyRemovesTheKey) {
  StylePaneWorld world;
  world.openWithLists(abc, {});
  world.editing.ejTDController().clearInformation();
  world.editing.writeUpdateDicTarvoPlist(EJ);
  EXPECT_EQ(world.writes, 1);
  EXPECT_EQ(world.listOnDisk(keyNameEJ), Array{"(absent)"});
  EXPECT_EQ(world.halfOnDisk(keyNameEJ).integerValue("Opt1"), 1);
}

TEST(SavingAList, intoARecordWithoutTheDirectionWritesItBackAsItIs) {
  StylePaneWorld world;
  Dictionary divider;
  divider.set(keyNameName, "----");
  world.open({divider});
  world.put({"a.TRet"});
  world.showLists({"a.TRet"}, {});
  world.editing.writeUpdateDicTarvoPlist(EJ);
  EXPECT_EQ(world.writes, 1);
  EXPECT_EQ(world.styleOnDisk(), divider);
}

TEST(SavingAList, intoTheDividerWritesItBackAsItIsEvenWhereItHasHalves) {
  StylePaneWorld world;
  Dictionary divider, half;
  half.set(keyNameTD, Array{});
  divider.set(keyNameName, world.texts.localized(keyNameSeparator));
  divider.set(keyNameEJ, half);
  world.open({divider});
  world.put({"a.TRet"});
  world.showLists({"a.TRet"}, {});
  world.editing.writeUpdateDicTarvoPlist(EJ);
  EXPECT_EQ(world.writes, 1);
  EXPECT_EQ(world.styleOnDisk(), divider);
}

TEST(SavingAList, withoutAShownStyleChangesAndWritesNothing) {
  StylePaneWorld world;
  world.openWithLists(abc, {});
  world.editing.ejTDController().clearInformation();
  for (const int index : {-1, 1}) {
    world.menu.stylePopup.setItems(std::vector<PopUpButton::Item>(2));
    world.menu.stylePopup.selectItemAtIndex(index);
    world.editing.writeUpdateDicTarvoPlist(EJ);
  }
  EXPECT_EQ(world.writes, 0);
  EXPECT_EQ(world.listOnDisk(keyNameEJ), arrayOf(abc));
}

TEST(SavingAList, goesToTheStyleOfTheMenu) {
  StylePaneWorld world;
  Dictionary first, second;
  first.set(keyNameEJ, Dictionary{});
  second.set(keyNameEJ, Dictionary{});
  world.open({first, second});
  world.menu.stylePopup.selectItemAtIndex(1);
  world.put({"a.TRet"});
  world.showLists({"a.TRet"}, {});
  world.editing.writeUpdateDicTarvoPlist(EJ);
  EXPECT_EQ(world.store.getStyleAtIndex(0), first);
  EXPECT_NE(world.store.getStyleAtIndex(1), second);
}

}  // namespace
}  // namespace tarvo::test
