// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/tool_switch.h"

#include <gtest/gtest.h>

#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

namespace tarvo::test {
namespace {

class ToolSwitch : public testing::Test {
 protected:
  void start(const Dictionary& root) {
    test_.writeStyles(root);
    ASSERT_TRUE(test_.program().start());
  }
  Result<> toNotepad(const Result<>& chosen) {
    Program& program = test_.program();
    return switchTool(Tool::notepad, store(), program.defaults(), program.services().texts, [&](int index) {
      indexes_.push_back(index);
      remembered_.push_back(remembered());
      return chosen;
    });
  }
  StyleStore& store() { return test_.program().rooms().store; }
  std::string remembered() { return *test_.program().defaults().string(SMSelectedTag); }
  TestProgram test_;
  std::vector<int> indexes_;
  std::vector<std::string> remembered_;  // when the style was chosen
};

TEST_F(ToolSwitch, choosesTheToolsStyleBeforeTheSettingsRememberTheTool) {
  start(sampleRoot());
  store().choose({"NP"}, 1);
  const std::string former = remembered();
  EXPECT_TRUE(toNotepad({}));
  EXPECT_EQ(indexes_, std::vector{1});
  EXPECT_EQ(remembered_, std::vector{former});
  EXPECT_EQ(store().currentID(), "NP");
  EXPECT_EQ(remembered(), "NP");
}

TEST_F(ToolSwitch, aChoiceThatFailsLeavesTheFormerToolInTheSettings) {
  start(sampleRoot());
  const std::string former = remembered();
  const Failure failure{"/a b", Attempt::write, Reason::noPath};
  const Result<> switched = toNotepad(failure);
  ASSERT_FALSE(switched);
  EXPECT_EQ(switched.error(), failure);
  EXPECT_EQ(remembered(), former);
}

TEST_F(ToolSwitch, choosesNothingWhereNoChoiceIsRemembered) {
  Dictionary root = sampleRoot();
  root.remove("Selection");
  start(root);
  EXPECT_TRUE(toNotepad(Failure{"/a b", Attempt::write, Reason::noPath}));
  EXPECT_EQ(indexes_, std::vector<int>());
  EXPECT_EQ(remembered(), "NP");
}

}  // namespace
}  // namespace tarvo::test
