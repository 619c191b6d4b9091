// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/killed_programs.h"

#include <gtest/gtest.h>

namespace tarvo::test {
namespace {

class KilledConsole : public testing::TestWithParam<int> {};

TEST_P(KilledConsole, hasEveryEditThatItToldAsMade) { killWhileItEdits("console", TARVOCTL, GetParam()); }

INSTANTIATE_TEST_SUITE_P(Styles, KilledConsole, testing::Values(6, 100, 1000), testing::PrintToStringParamName());

}  // namespace
}  // namespace tarvo::test
