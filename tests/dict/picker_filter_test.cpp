// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/dict/picker_world.h"

namespace tarvo::test {
namespace {

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

}  // namespace
}  // namespace tarvo::test
