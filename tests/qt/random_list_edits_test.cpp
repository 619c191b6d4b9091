// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

#include "console/script/manual_run_loop.h"
#include "tests/qt/qt_scenario_shell.h"
#include "tests/qt/script_run.h"
#include "tests/soak/list_edits.h"

// Random edits of dictionary lists in the real window, beside plain lists that know nothing of it.
namespace tarvo::test {
namespace {

class RandomListEdits : public testing::TestWithParam<std::size_t> {};

TEST_P(RandomListEdits, asAScriptShowTheSameInTheWindow) {
  const unsigned seed = seeds()[GetParam()];
  std::cout << "seed " << seed << '\n' << std::flush;
  const SoakRoot root;
  QtScenarioShell shell;
  ManualRunLoop clock;
  ScenarioSession session(root.options(), shell, clock);
  const int count = shellEditCount() / static_cast<int>(seeds().size());
  std::ostringstream output;
  Interpreter interpreter(session, randomScript(seed, count, root.plainLists()), "random", output);
  ScriptRun(interpreter).run();
  EXPECT_EQ(interpreter.failure(), "") << "seed " << seed;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomListEdits, testing::Range<std::size_t>(0, seeds().size()),
                         [](const auto& test) { return seedName(test.param); });

}  // namespace
}  // namespace tarvo::test
