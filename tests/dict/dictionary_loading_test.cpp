// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_loading.h"

#include <gtest/gtest.h>

#include "tests/dict/list_buttons.h"
#include "tests/dict/picker_world.h"

namespace tarvo::test {
namespace {

Names technicalNames(int count) {
  Names names;
  for (int i = 0; i < count; ++i) names.push_back(std::string(1, static_cast<char>('a' + i)) + ".TRet");
  return names;
}

// The picker is open on further dictionaries while the test's lines run.
struct LoadingWorld : PickerWorld {
  LoadingWorld(const Names& loaded, std::initializer_list<const char*> further) {
    openWithLists(loaded, {});
    put(further);
  }
  void withPicker(const std::function<void()>& lines, int direction = 0) {
    host.whileModal = [&](Window&) {
      lines();
      if (picker.myWindow.isShown()) loading.dicWindowCancel();
    };
    loading.loadTD(direction);
  }
};

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
  EXPECT_EQ(world.guard.changedKinds, std::vector<int>{2});
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
    EXPECT_EQ(world.guard.changedKinds, std::vector<int>{});
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

TEST(DictionaryLoading, aListFillsUpToTheLimit) {
  for (const int loaded : {5, 6, 7}) {
    LoadingWorld world(technicalNames(loaded), {"x.TRet", "y.TRet"});
    world.withPicker([&] {
      world.tick({0, 1});
      world.takeLog();
      world.loading.dicWindowOK();
      const bool fits = loaded + 2 <= TDMax;
      EXPECT_EQ(world.picker.myWindow.isShown(), !fits) << loaded;
      EXPECT_EQ(world.controller.getCheckedArray(technical).size(), 2U) << "ticks stay";
      if (!fits) {
        EXPECT_EQ(world.takeLog(), (Log{"beep", "alert MaxOverTDAlertHeader / MaxOverTDAlertContents"}));
      }
    });
    const int expected = loaded + 2 <= TDMax ? loaded + 2 : loaded;
    EXPECT_EQ(world.listOnDisk(keyNameEJ).size(), static_cast<std::size_t>(expected));
    EXPECT_EQ(world.outlets.ejLoadDicButton.isEnabled(), expected < TDMax);
  }
}

TEST(DictionaryLoading, aListBeyondTheLimitTakesNothingUntilEnoughAreRemoved) {
  LoadingWorld world(technicalNames(10), {"x.TRet"});
  world.withPicker([&] {
    world.tick({0});
    world.takeLog();
    world.loading.dicWindowOK();
    EXPECT_EQ(world.takeLog(), (Log{"beep", "alert MaxOverTDAlertHeader / MaxOverTDAlertContents"}));
    EXPECT_TRUE(world.picker.myWindow.isShown());
  });
  EXPECT_EQ(loadedOf(world.editing.ejTDController()), technicalNames(10));
  for (int times = 0; times < 3; ++times) {
    world.outlets.ejTDTable.selectRows({0});
    world.editing.removeTD(0);
  }
  world.withPicker([&] {
    world.tick({world.picker.techDicTable.numberOfRows() - 1});
    world.loading.dicWindowOK();
    EXPECT_FALSE(world.picker.myWindow.isShown());
  });
  EXPECT_EQ(world.listOnDisk(keyNameEJ).size(), 8U);
  EXPECT_EQ(world.listOnDisk(keyNameEJ).back(), PropertyList("x.TRet"));
}

TEST(DictionaryLoading, aVanishedFileIsToldAndTheOthersAreAdded) {
  LoadingWorld world({}, {"a.TRet", "gone.TRet", "z.TRet"});
  world.setText("notExistsFileAlertContents", "Missing:");
  world.withPicker([&] {
    world.controller.selectShown();
    world.take("gone.TRet");
    world.takeLog();
    world.loading.dicWindowOK();
    EXPECT_EQ(world.takeLog(), (Log{"beep", "alert notExistsFileAlertHeader / Missing:\n\ngone.TRet", "wrote",
                                    "reload style.ejTDTable", "hidden picker.myWindow"}));
    EXPECT_EQ(world.panels.alerts.back().buttons, std::vector<std::string>{"AlertClose"});
  });
  EXPECT_EQ(world.listOnDisk(keyNameEJ), (Array{"a.TRet", "z.TRet"}));
}

TEST(DictionaryLoading, onlyTheLastOfSeveralVanishedFilesIsNamed) {
  LoadingWorld world({}, {"g1.TRet", "h.TRet", "i2.TRet"});
  world.withPicker([&] {
    world.controller.selectShown();
    world.take("g1.TRet");
    world.take("i2.TRet");
    world.loading.dicWindowOK();
  });
  ASSERT_EQ(world.panels.alerts.size(), 1U);
  EXPECT_EQ(world.panels.alerts[0].message, "notExistsFileAlertContents\n\ni2.TRet");
  EXPECT_EQ(world.listOnDisk(keyNameEJ), Array{"h.TRet"});
}

TEST(DictionaryLoading, vanishedFilesDoNotCountAgainstTheLimit) {
  LoadingWorld world(technicalNames(6), {"x.TRet", "y.TRet", "z.TRet"});
  world.withPicker([&] {
    world.controller.selectShown();
    world.take("y.TRet");
    world.loading.dicWindowOK();
    EXPECT_FALSE(world.picker.myWindow.isShown());
  });
  ASSERT_EQ(world.panels.alerts.size(), 1U);
  EXPECT_EQ(world.panels.alerts[0].title, "notExistsFileAlertHeader");
  EXPECT_EQ(world.listOnDisk(keyNameEJ).size(), 8U);
}

TEST(DictionaryLoading, aLimitPassedAllTheSameIsToldAfterTheVanishedFile) {
  LoadingWorld world(technicalNames(7), {"x.TRet", "y.TRet", "z.TRet"});
  world.withPicker([&] {
    world.controller.selectShown();
    world.take("y.TRet");
    world.takeLog();
    world.loading.dicWindowOK();
    EXPECT_TRUE(world.picker.myWindow.isShown());
    EXPECT_EQ(world.takeLog(), (Log{"beep", "alert notExistsFileAlertHeader / notExistsFileAlertContents\n\ny.TRet",
                                    "beep", "alert MaxOverTDAlertHeader / MaxOverTDAlertContents"}));
  });
}

TEST(DictionaryLoading, whenAllHaveVanishedTheListIsSavedAsItIs) {
  LoadingWorld world({"a.TRet"}, {"x.TRet"});
  world.withPicker([&] {
    world.tick({0});
    world.take("x.TRet");
    world.takeLog();
    world.loading.dicWindowOK();
    EXPECT_EQ(world.takeLog(), (Log{"beep", "alert notExistsFileAlertHeader / notExistsFileAlertContents\n\nx.TRet",
                                    "wrote", "reload style.ejTDTable", "hidden picker.myWindow"}));
  });
  EXPECT_EQ(world.guard.changedKinds, std::vector<int>{}) << "nothing was added";
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
  EXPECT_EQ(world.guard.changedKinds, std::vector<int>{});
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
  EXPECT_EQ(world.guard.changedKinds, std::vector<int>{2});
}

}  // namespace
}  // namespace tarvo::test
