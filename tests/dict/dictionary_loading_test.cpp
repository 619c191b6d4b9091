// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_loading.h"

#include <gtest/gtest.h>

#include "tests/dict/list_buttons.h"
#include "tests/dict/loading_world.h"

namespace tarvo::test {
namespace {

TEST(DictionaryLoading, opensThePickerOnWhatTheListDoesNotHoldAfterANewScan) {
  LoadingWorld world({"b.TRet"}, {"a.TRet", "c.TRet", "d.TRet"});
  world.withPicker([&] {
    EXPECT_EQ(world.pickerNames(), (Names{"a.TRet", "c.TRet", "d.TRet"}));
    EXPECT_EQ(world.controller.getCheckedArray(technical), Names{});
    EXPECT_EQ(world.request.direction, EJ);
    EXPECT_EQ(world.picker.myWindow.title(), "EJ-TDEdit");
    EXPECT_EQ(world.picker.roomText.stringValue(), "PickerRoom7");
  });
  world.withPicker(
      [&] {
        EXPECT_EQ(world.pickerNames(), Names{});
        EXPECT_EQ(world.request.direction, JE);
        EXPECT_EQ(world.picker.myWindow.title(), "JE-TDEdit");
      },
      1);
}

TEST(DictionaryLoading, theScanNeitherSavesNorReadsTheTable) {
  LoadingWorld world({"a.TRet", "b.TRet"}, {});
  world.take("b.TRet");
  world.takeLog();
  world.withPicker([] {});
  EXPECT_EQ(world.takeLog(), (Log{"reload picker.techDicTable", "scroll picker.techDicTable 0", "modal picker.myWindow",
                                  "hidden picker.myWindow", "modal ended"}));
  EXPECT_EQ(loadedOf(world.editing.ejTDController()), Names{"a.TRet"});
  EXPECT_EQ(world.outlets.ejTDTable.numberOfRows(), 2);
  EXPECT_EQ(world.listOnDisk(keyNameEJ), (Array{"a.TRet", "b.TRet"}));
}

TEST(DictionaryLoading, ticksAreGoneWhenThePickerIsOpenedAgain) {
  LoadingWorld world({}, {"a.TRet"});
  world.withPicker([&] { world.tick({0}); });
  world.withPicker([&] { EXPECT_EQ(world.controller.getCheckedArray(technical), Names{}); });
}

TEST(DictionaryLoading, addsWhatIsTickedAtTheEndAndSavesBeforeItCloses) {
  LoadingWorld world({"c.TRet"}, {"a.TRet", "b.TRet", "d.TRet"});
  world.withPicker([&] {
    world.tick({2, 0});
    world.takeLog();
    world.loading.dicWindowOK();
    EXPECT_EQ(world.takeLog(), (Log{"wrote", "reload style.ejTDTable", "hidden picker.myWindow"}));
  });
  EXPECT_EQ(world.listOnDisk(keyNameEJ), (Array{"c.TRet", "a.TRet", "d.TRet"}));
  EXPECT_EQ(world.changedKinds, std::vector<int>{2});
}

TEST(DictionaryLoading, withNothingTickedThePickerOnlyCloses) {
  for (const int direction : {0, 1}) {
    LoadingWorld world({"a.TRet"}, {"b.TRet"});
    world.withPicker(
        [&] {
          world.takeLog();
          muddle(world.outlets);
          world.loading.dicWindowOK();
          EXPECT_EQ(world.takeLog(), Log{"hidden picker.myWindow"});
        },
        direction);
    EXPECT_EQ(world.changedKinds, std::vector<int>{});
    EXPECT_EQ(ejButtons(world.outlets), muddled) << "no button is looked at";
    EXPECT_EQ(jeButtons(world.outlets), muddled);
  }
}

TEST(DictionaryLoading, cancellingOnlyCloses) {
  LoadingWorld world({"a.TRet"}, {"b.TRet"});
  world.withPicker([&] {
    world.tick({0});
    world.takeLog();
    muddle(world.outlets);
    world.loading.dicWindowCancel();
    EXPECT_EQ(world.takeLog(), Log{"hidden picker.myWindow"});
    EXPECT_EQ(world.host.stops, 1);
    EXPECT_EQ(ejButtons(world.outlets), muddled) << "no button is looked at";
    EXPECT_EQ(jeButtons(world.outlets), muddled);
  });
  EXPECT_EQ(world.listOnDisk(keyNameEJ), Array{"a.TRet"});
}

TEST(DictionaryLoading, theOtherWayClosesFirstAndAsksForNoFile) {
  LoadingWorld world({"x.TRet"}, {"a.TRet", "g1.TRet"});
  world.withPicker([&] {
    world.controller.selectShown();
    world.take("g1.TRet");
    world.takeLog();
    world.loading.dicWindowOK2();
    EXPECT_EQ(world.takeLog(), (Log{"hidden picker.myWindow", "wrote", "reload style.ejTDTable"}));
  });
  EXPECT_EQ(world.listOnDisk(keyNameEJ), (Array{"x.TRet", "a.TRet"}));
  EXPECT_EQ(world.changedKinds, std::vector<int>{});
}

TEST(DictionaryLoading, theOtherWayKeepsTheLimitAndSavesEvenWithNothingTicked) {
  LoadingWorld full(technicalNames(8), {"x.TRet"});
  full.withPicker([&] {
    full.tick({0});
    full.takeLog();
    full.loading.dicWindowOK2();
    EXPECT_EQ(full.takeLog(), (Log{"beep", "alert MaxOverTDAlertHeader / MaxOverTDAlertContents"}));
    EXPECT_TRUE(full.picker.myWindow.isShown());
  });
  LoadingWorld world({"x.TRet"}, {"a.TRet"});
  world.withPicker([&] {
    world.takeLog();
    world.loading.dicWindowOK2();
    EXPECT_EQ(world.takeLog(), (Log{"hidden picker.myWindow", "wrote", "reload style.ejTDTable"}));
  });
}

TEST(DictionaryLoading, theTicksMayReplaceAListWithoutSaving) {
  LoadingWorld world({"a.TRet", "b.TRet"}, {"c.TRet"});
  world.withPicker([&] { world.tick({0}); });
  world.takeLog();
  world.loading.setSelectedDic(EJ);
  EXPECT_EQ(loadedOf(world.editing.ejTDController()), Names{"c.TRet"});
  EXPECT_EQ(world.takeLog(), Log{});
}

TEST(DictionaryLoading, aSheetOpenedMeanwhileDecidesWhereTheTicksGo) {
  LoadingWorld world({"a.TRet"}, {"b.TRet"});
  world.withPicker([&] {
    world.tick({0});
    world.request.direction = JE;
    world.loading.dicWindowOK();
  });
  EXPECT_EQ(world.listOnDisk(keyNameEJ), Array{"a.TRet"});
  EXPECT_EQ(world.panels.alerts.size(), 1U) << "the other direction has no such file";
}

TEST(DictionaryLoading, aRemovalIsToldToTheGuardAfterTheSave) {
  LoadingWorld world({"a.TRet", "b.TRet"}, {});
  world.outlets.ejTDTable.selectRows({0});
  world.takeLog();
  world.editing.removeTD(0);
  EXPECT_EQ(world.takeLog(), (Log{"wrote", "reload style.ejTDTable"}));
  EXPECT_EQ(world.changedKinds, std::vector<int>{2});
}

}  // namespace
}  // namespace tarvo::test
