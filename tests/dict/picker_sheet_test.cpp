// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/dict/picker_world.h"

namespace tarvo::test {
namespace {

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
