// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_loading.h"

#include <gtest/gtest.h>

#include "tests/dict/loading_world.h"

namespace tarvo::test {
namespace {

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
  EXPECT_EQ(world.changedKinds, std::vector<int>{}) << "nothing was added";
}

}  // namespace
}  // namespace tarvo::test
