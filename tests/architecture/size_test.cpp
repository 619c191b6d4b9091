// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/architecture/source_tree.h"

namespace tarvo {
namespace {

// Beyond this a file holds more than one duty.
constexpr int kLongestFile = 250;

TEST(Size, noFileOfTheProgramIsLongerThanItsLimit) {
  const auto counts = readLineCounts(TARVO_SOURCE_DIR);
  ASSERT_TRUE(counts.contains("platform/controls/controls.h"));
  EXPECT_GT(counts.at("platform/controls/controls.h"), 10);
  for (const auto& [path, lines] : counts) {
    if (path.starts_with("tests/")) continue;
    EXPECT_LE(lines, kLongestFile) << path;
  }
}

}  // namespace
}  // namespace tarvo
