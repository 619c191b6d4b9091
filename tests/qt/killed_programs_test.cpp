// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/killed_programs.h"

#include <gtest/gtest.h>

namespace tarvo::test {
namespace {

class KilledWindow : public testing::TestWithParam<int> {};

TEST_P(KilledWindow, hasEveryEditThatItToldAsMade) { killWhileItEdits("window", TARVO_WINDOW_SCRIPT, GetParam()); }

INSTANTIATE_TEST_SUITE_P(Styles, KilledWindow, testing::Values(6, 100, 1000), testing::PrintToStringParamName());

}  // namespace
}  // namespace tarvo::test
