// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>

#include "tests/support/shell.h"

// A tenth of what script/soak does.
namespace tarvo::test {
namespace {

constexpr const char* edits = "100";
constexpr int notInstalled = 77;

class SharedStyles : public testing::TestWithParam<const char*> {};

TEST_P(SharedStyles, loseNoEditOfTenMachinesAlthoughTheyAndTheServerAreKilledAgainAndAgain) {
  const std::string command = "python3 -B " + quoted(TARVO_SOURCE_DIR "/tests/servers/shared_styles.py") + ' ' +
                              quoted(TARVOCTL) + ' ' + GetParam() + ' ' + edits + " 1";
  const int status = std::system(command.c_str());
  ASSERT_TRUE(WIFEXITED(status));
  if (WEXITSTATUS(status) == notInstalled) GTEST_SKIP() << GetParam() << " is not installed";
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

INSTANTIATE_TEST_SUITE_P(Servers, SharedStyles, testing::Values("nginx", "apache"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace tarvo::test
