// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/support/shell.h"

// What is handed out to people, where it has been built: its headers tell how.
namespace tarvo::test {
namespace {

class ReleasedProgram : public testing::TestWithParam<const char*> {};

TEST_P(ReleasedProgram, isBuiltAgainstFaultsOfMemory) {
  const std::string program = std::string(TARVO_SOURCE_DIR "/build/release/") + GetParam();
  if (!std::filesystem::exists(program)) GTEST_SKIP() << "there is no release build";
  const std::string headers = outputOf("readelf -hldW " + test::quoted(program));
  EXPECT_NE(headers.find("DYN (Position-Independent Executable"), std::string::npos);
  EXPECT_NE(headers.find("GNU_RELRO"), std::string::npos);
  EXPECT_NE(headers.find("BIND_NOW"), std::string::npos) << headers;
  const std::string symbols = outputOf("readelf -sW " + test::quoted(program));
  EXPECT_NE(symbols.find("__stack_chk_fail"), std::string::npos);
  EXPECT_NE(symbols.find("_chk@"), std::string::npos) << "checked calls of the C library";
}

INSTANTIATE_TEST_SUITE_P(All, ReleasedProgram, testing::Values("console/tarvoctl", "qt/tarvo-manager"),
                         [](const testing::TestParamInfo<const char*>& program) {
                           return std::filesystem::path(program.param).filename().string().substr(5, 1) == "c"
                                      ? std::string("tarvoctl")
                                      : std::string("tarvoManager");
                         });

}  // namespace
}  // namespace tarvo::test
