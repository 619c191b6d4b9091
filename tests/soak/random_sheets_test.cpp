// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <iostream>

#include "tests/soak/list_edits.h"
#include "tests/soak/sheet_walk.h"

namespace tarvo::test {
namespace {

constexpr int walks = 2000;
constexpr int longestWalk = 24;

class RandomSheets : public testing::TestWithParam<std::size_t> {};

TEST_P(RandomSheets, restrictTheMenusOnlyWhileTheyAreUpAndLeaveNothingBehind) {
  const unsigned seed = seeds()[GetParam()];
  std::cout << "seed " << seed << '\n' << std::flush;
  SheetWalk walk(seed);
  std::mt19937 lengths(seed);
  for (int i = 0; i < walks / static_cast<int>(seeds().size()) + 1; ++i) {
    const int steps = std::uniform_int_distribution<>(1, longestWalk)(lengths);
    ASSERT_EQ(walk.walk(steps), "") << "walk " << i << " of seed " << seed;
  }
  EXPECT_GT(walk.sheetsThatWaited(), 100) << "the walks are too tame";
  EXPECT_GT(walk.starts(), 10);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSheets, testing::Range<std::size_t>(0, seeds().size()),
                         [](const auto& test) { return seedName(test.param); });

}  // namespace
}  // namespace tarvo::test
