// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/tool_chooser.h"

#include <gtest/gtest.h>

#include "style/process_flags.h"
#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

namespace tarvo::test {
namespace {

using Segments = std::vector<int>;

class ToolChooserTest : public testing::Test {
 protected:
  ToolChooserTest() {
    test_.writeStyles(sampleRoot());
    test_.program().start();
    test_.log.clear();
  }
  ToolChooser& chooser() { return test_.program().rooms().chooser; }
  StyleOutlets& outlets() { return test_.interface().style; }
  Segments selected() {
    return {outlets().TEAppSeg1.selectedSegment(), outlets().TEAppSeg2.selectedSegment(),
            outlets().TEAppSeg3.selectedSegment()};
  }
  std::optional<Tool> saveHit() { return test_.program().rooms().flags.saveHit; }
  TestProgram test_;
};

TEST_F(ToolChooserTest, aClickChoosesTheToolOfSegmentAndControl) {
  test_.engine.online = true;
  bool wasChanging = false;
  test_.program().rooms().store.didWrite = [&] { wasChanging = chooser().isSegChange(); };
  EXPECT_FALSE(chooser().isSegChange());
  outlets().TEAppSeg2.userClick(2);
  test_.program().rooms().store.didWrite = {};
  EXPECT_TRUE(wasChanging);
  EXPECT_FALSE(chooser().isSegChange());
  EXPECT_EQ(selected(), (Segments{-1, 2, -1}));
  EXPECT_EQ(saveHit(), Tool::notepad);
  EXPECT_EQ(outlets().toolIcon.image(), "NP.tif");
  EXPECT_EQ(test_.program().rooms().store.currentID(), "NP");
  EXPECT_EQ(outlets().stylePopup.indexOfSelectedItem(), 0);
  EXPECT_EQ(test_.log, (Log{"reachable", "register 4"}));
  EXPECT_EQ(test_.stylesOnDisk().dictionary("Selection")->integerValue("NP"), 0);
  EXPECT_EQ(*test_.defaultsOnDisk().string("SMSelectedTag"), "NP");
}

TEST_F(ToolChooserTest, aProgramSelectsTheSegmentOfATool) {
  struct Choice {
    int tool;
    Segments selected;
  };
  for (const Choice& choice : {Choice{3, {-1, 0, -1}}, Choice{7, {-1, -1, 1}}, Choice{0, {0, -1, -1}},
                               Choice{2, {2, -1, -1}}, Choice{6, {-1, -1, 0}}, Choice{8, {-1, -1, 2}}}) {
    bool wasChanging = false;
    test_.program().rooms().store.didWrite = [&] { wasChanging = chooser().isSegChange(); };
    chooser().setSelectSeg(choice.tool);
    EXPECT_EQ(selected(), choice.selected) << choice.tool;
    EXPECT_EQ(saveHit(), toolForPlace(choice.tool));
    EXPECT_EQ(wasChanging, choice.tool != 8) << "no tool has that number";
    EXPECT_FALSE(chooser().isSegChange());
  }
  test_.program().rooms().store.didWrite = {};
}

TEST(ToolChooser, leavesNoSegmentSelectedBeyondTheToolsAndKeepsTheTool) {
  TestProgram test;
  test.writeStyles(sampleRoot());
  ASSERT_TRUE(test.program().start());
  const StyleOutlets& style = test.interface().style;
  const std::string before = test.root.read(test.inHome(TestProgram::stylePath));
  for (const int tool : {9, -1, 100}) {
    test.program().rooms().chooser.setSelectSeg(tool);
    EXPECT_EQ(style.TEAppSeg1.selectedSegment(), -1);
    EXPECT_EQ(style.TEAppSeg3.selectedSegment(), -1);
    EXPECT_EQ(test.program().rooms().flags.saveHit, std::nullopt);
  }
  test.program().rooms().chooser.setSelectSeg(8);
  EXPECT_EQ(style.TEAppSeg3.selectedSegment(), 2);
  EXPECT_EQ(test.program().rooms().store.currentID(), "MG");
  EXPECT_EQ(test.root.read(test.inHome(TestProgram::stylePath)), before);
}

TEST_F(ToolChooserTest, disablesTheOptionPopUpsOfTheToolsWithoutOptions) {
  OptionOutlets& options = test_.interface().options;
  for (const bool detailsEnabled : {true, false}) {
    for (PopUpButton& popup : options.detailPopups) popup.setEnabled(detailsEnabled);
    for (const int tool : {5, 0, 6, 7, 5, 99, 6, -1, 1, 2, 3, 4, 8}) {
      chooser().doEnabledButtons(toolForPlace(tool));
      for (const PopUpButton& popup : options.indexPopups) {
        EXPECT_EQ(popup.isEnabled(), tool != 5 && tool != 6) << tool;
      }
      for (const PopUpButton& popup : options.detailPopups) EXPECT_EQ(popup.isEnabled(), detailsEnabled) << tool;
    }
  }
  EXPECT_EQ(test_.log, Log{}) << "nothing is written";
}

}  // namespace
}  // namespace tarvo::test
