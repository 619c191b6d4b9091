// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "tests/support/shell.h"
#include "tests/support/temporary_folder.h"

// A complete style file with unknown keys of every type, edited once; another property-list reader tells what changed.
namespace tarvo::test {
namespace {

class OneEdit : public testing::TestWithParam<const char*> {};

TEST_P(OneEdit, changesOneValueAndKeepsEveryKeyThatNobodyKnows) {
  const std::string place = placeForAttributes();
  if (place.empty()) GTEST_SKIP() << "no disk here keeps the type codes by which some dictionaries are found";
  const TemporaryFolder folder(place);
  const std::string source = TARVO_SOURCE_DIR;
  const std::string command = "python3 " + test::quoted(source + "/tests/console/verbs/one_value_changed.py") + " " +
                              test::quoted(TARVOCTL) + " " + test::quoted(source + "/sample/install") + " " +
                              test::quoted(folder.path()) + " " + GetParam() + " 2>&1";
  EXPECT_EQ(outputOf(command), "");
}

INSTANTIATE_TEST_SUITE_P(Forms, OneEdit, testing::Values("xml", "binary", "utf16"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace tarvo::test
