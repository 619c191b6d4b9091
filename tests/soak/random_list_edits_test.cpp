// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <sstream>

#include "app/program.h"
#include "console/script/manual_run_loop.h"
#include "console/script/memory_shell.h"
#include "console/script/scenario_session.h"
#include "console/verbs/run_script.h"
#include "platform/services/plist_file.h"
#include "tests/soak/list_edits.h"
#include "tests/support/shell.h"

namespace tarvo::test {
namespace {

constexpr int editsBetweenLooksOfPlistlib = 1000;

class RandomListEdits : public testing::TestWithParam<std::size_t> {
 protected:
  unsigned seed() const { return seeds()[GetParam()]; }
  std::string place(int edit) const { return "edit " + std::to_string(edit) + " of seed " + std::to_string(seed()); }
  std::string listsOfPlistlib() const {
    return outputOf("python3 " + test::quoted(TARVO_SOURCE_DIR "/tests/soak/lists_of.py") + ' ' +
                    test::quoted(root_.styleFile()));
  }
  const SoakRoot root_;
};

TEST_P(RandomListEdits, keepControlsStoreAndFileAlike) {
  std::cout << "seed " << seed() << '\n' << std::flush;
  MemoryShell shell;
  ManualRunLoop clock;
  ScenarioSession session(root_.options(), shell, clock);
  session.start();
  MemoryWindows& windows = shell.windowHost();
  PlainLists lists = root_.plainLists();
  std::mt19937 random(seed());
  PlistFile file(session.product().files(), DiskPath(root_.styleFile()));
  const int count = editCount() / static_cast<int>(seeds().size());
  for (int edit = 1; edit <= count; ++edit) {
    const ListEdit next = lists.randomEdit(random);
    makeEdit(next, lists, session.program(), shell.hand(), windows);
    lists.apply(next);
    session.recorder().take();
    ASSERT_EQ(differenceInProgram(lists, session.program()), "") << place(edit);
    ASSERT_EQ(differenceInStyles(lists, file.read().value_or(Dictionary())), "") << place(edit);
    if (edit % editsBetweenLooksOfPlistlib != 0 && edit != count) continue;
    ASSERT_EQ(listsOfPlistlib(), linesOf(lists)) << place(edit);
  }
}

TEST_P(RandomListEdits, asAScriptShowTheSameInTheConsole) {
  std::cout << "seed " << seed() << '\n' << std::flush;
  ManualRunLoop clock;
  std::ostringstream out, err;
  const int count = shellEditCount() / static_cast<int>(seeds().size());
  const ExitStatus status =
      runScript(root_.options(), clock, "random", randomScript(seed(), count, root_.plainLists()), out, err);
  EXPECT_EQ(err.str(), "") << "seed " << seed();
  EXPECT_EQ(status, ExitStatus::done) << "seed " << seed();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomListEdits, testing::Range<std::size_t>(0, seeds().size()),
                         [](const auto& test) { return seedName(test.param); });

}  // namespace
}  // namespace tarvo::test
