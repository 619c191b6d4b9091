// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/command_line/common_options.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

bool isTaken(const std::string& busName) {
  CommonOptions options;
  const CommandTable table{"tarvoctl", "AboutText", commonOptions(options, Front::console), {}, {}};
  return !readWords(table, {"--bus-name", busName}).error;
}

TEST(CommonOptions, knowNamesOfTheBus) {
  for (const char* name : {"none", "a.b", "com.wordhaven.TarvoManager", "_x.y-1.Z_"})
    EXPECT_TRUE(isTaken(name)) << name;
  for (const char* name : {"", "a", ".a", "a.", "a..b", "1a.b", "a.1b", "a b.c", "日.本", ":1.5"}) {
    EXPECT_FALSE(isTaken(name)) << name;
  }
}

}  // namespace
}  // namespace tarvo
