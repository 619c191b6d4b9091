// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/undo_steps.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "platform/services/user_defaults.h"
#include "style/style_keys.h"
#include "tests/support/fake_shell.h"
#include "tests/support/memory_files.h"
#include "tests/support/sample_styles.h"

namespace tarvo::test {
namespace {

using Way = UndoSteps::Way;
using State = UndoSteps::State;

class UndoStepsTest : public testing::Test {
 protected:
  UndoStepsTest() {
    files.put("/styles.plist", writePropertyList(sampleRoot()));
    EXPECT_TRUE(store.readUserStyles());
    store.setAwakening(false);
    store.didChange = [this](const StoredChange& change) { steps.note(change); };
  }
  std::string name(int index = 1) const { return *store.getStyleAtIndex(index)->string(keyNameName); }
  void rename(const std::string& name, ChangeKind kind = ChangeKind::edit, int index = 1) {
    Dictionary record = *store.getStyleAtIndex(index);
    record.set(keyNameName, name);
    store.setStyle(index, std::move(record), kind);
  }
  MemoryFiles files;
  Log log;
  FakeEngine engine{log};
  UserDefaults defaults{files, DiskPath("/defaults.plist")};
  StyleStore store{files, engine, defaults, DiskPath("/styles.plist"), DiskPath("/seed.plist")};
  UndoSteps steps{store};
};

TEST_F(UndoStepsTest, anEditIsTakenBackAndMadeAgainByOneWriteEach) {
  const std::string former = name();
  rename("New");
  const int writes = files.writes();
  steps.take(Way::undo);
  EXPECT_EQ(name(), former);
  EXPECT_EQ(files.writes(), writes + 1);
  EXPECT_EQ(steps.state(Way::undo), State::nothing);
  steps.take(Way::redo);
  EXPECT_EQ(name(), "New");
  EXPECT_EQ(steps.state(Way::redo), State::nothing);
}

TEST_F(UndoStepsTest, anEditAfterAnUndoForgetsWhatWasUndone) {
  rename("New");
  steps.take(Way::undo);
  rename("Other");
  EXPECT_EQ(steps.state(Way::redo), State::nothing);
  steps.take(Way::undo);
  EXPECT_EQ(steps.state(Way::undo), State::nothing);
}

TEST_F(UndoStepsTest, nothingIsUndoneOverAValueThatChangedSince) {
  rename("New");
  store.setAwakening(true);
  rename("Theirs");
  EXPECT_EQ(steps.state(Way::undo), State::changed);
  steps.take(Way::undo);
  EXPECT_EQ(name(), "Theirs");
}

TEST_F(UndoStepsTest, anEditIsTakenBackAndMadeAgainOverWhatTheProgramRepaired) {
  const std::string former = name();
  rename("Former");
  rename("New");
  rename("Repaired", ChangeKind::repair);
  steps.take(Way::undo);
  EXPECT_EQ(name(), "Former");
  rename("Former, repaired", ChangeKind::repair);
  EXPECT_EQ(steps.state(Way::redo), State::ready);
  steps.take(Way::undo);
  EXPECT_EQ(name(), former);
  EXPECT_EQ(steps.state(Way::undo), State::nothing);
  steps.take(Way::redo);
  steps.take(Way::redo);
  EXPECT_EQ(name(), "Repaired");
}

TEST_F(UndoStepsTest, aRepairOfAnotherStyleLeavesTheStepsAsTheyAre) {
  rename("New");
  rename("Repaired", ChangeKind::repair, 3);
  steps.take(Way::undo);
  EXPECT_EQ(name(3), "Repaired");
  EXPECT_EQ(steps.state(Way::redo), State::ready);
}

TEST_F(UndoStepsTest, whatTheProgramRepairsIsNoStep) {
  rename("Repaired", ChangeKind::repair);
  store.setAwakening(true);
  rename("Loaded");
  EXPECT_EQ(steps.state(Way::undo), State::nothing);
}

TEST_F(UndoStepsTest, anEditThatChangesNothingIsNoStep) {
  rename(name());
  EXPECT_EQ(steps.state(Way::undo), State::nothing);
}

TEST_F(UndoStepsTest, theStyleOfAToolIsTakenBackAndOthersStay) {
  store.choose({"QB"}, 2);
  const Dictionary before = *store.getSelection();
  store.choose({"MG"}, 1);
  store.choose({"QB"}, 3);
  steps.take(Way::undo);
  EXPECT_EQ(store.getSelection()->integerValue("QB"), 2);
  EXPECT_EQ(store.getSelection()->integerValue("MG"), 1);
  steps.take(Way::undo);
  EXPECT_EQ(*store.getSelection(), before);
}

TEST_F(UndoStepsTest, aWholeSetIsTakenBackWithItsChoices) {
  const Dictionary before = store.root();
  Dictionary selection, root = before;
  selection.set("MG", 0);
  root.set(keyNameStyle, Array{before.array(keyNameStyle)->front()});
  root.set(keyNameSelection, selection);
  store.replaceRoot(root, ChangeKind::restore);
  EXPECT_EQ(store.getAllStyle()->size(), 1U);
  steps.take(Way::undo);
  EXPECT_EQ(store.root(), before);
}

TEST_F(UndoStepsTest, theLastHundredEditsAreRemembered) {
  for (int i = 0; i < 130; ++i) rename("Name " + std::to_string(i));
  int taken = 0;
  while (steps.state(Way::undo) == State::ready) {
    steps.take(Way::undo);
    ++taken;
  }
  EXPECT_EQ(taken, 100);
  EXPECT_EQ(name(), "Name 29");
}

}  // namespace
}  // namespace tarvo::test
