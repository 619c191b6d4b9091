// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/console/run_tool.h"
#include "tests/support/scenario_files.h"

// Every scenario file over the shell without a screen.
namespace tarvo::test {
namespace {

class Scenario : public testing::TestWithParam<ScenarioFile> {};

TEST_P(Scenario, runs) {
  const ScenarioFile& file = GetParam();
  const ScenarioRoot root(file.root);
  if (file.needsAttributes && !keepsAttributes(root.folder())) GTEST_SKIP() << "the disk keeps no attributes";
  std::vector<std::string> arguments = scenarioArguments(file, root);
  arguments.insert(arguments.end(), {"run", file.path});
  const ToolResult result = runTool(arguments, scenarioFolder());
  EXPECT_EQ(result.err, file.tells);
  EXPECT_EQ(result.status, 0) << result.out;
}

INSTANTIATE_TEST_SUITE_P(OverTheConsole, Scenario, testing::ValuesIn(scenarioFiles()),
                         [](const testing::TestParamInfo<ScenarioFile>& scenario) { return scenario.param.name; });

}  // namespace
}  // namespace tarvo::test
