// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "tests/support/shell.h"
#include "tests/support/temporary_folder.h"

// The options for what is handed out to people, on a small program: its headers tell.
namespace tarvo::test {
namespace {

TEST(ReleasedProgram, isBuiltAgainstFaultsOfMemory) {
  const TemporaryFolder folder;
  outputOf("cmake -G Ninja -S " + test::quoted(TARVO_SOURCE_DIR "/tests/hardened") + " -B " +
           test::quoted(folder.path()) + " -DCMAKE_BUILD_TYPE=Release -DTARVO_WERROR=ON && cmake --build " +
           test::quoted(folder.path()));
  const std::string program = test::quoted(folder / "hardened");
  const std::string headers = outputOf("readelf -hldW " + program);
  EXPECT_NE(headers.find("DYN (Position-Independent Executable"), std::string::npos);
  EXPECT_NE(headers.find("GNU_RELRO"), std::string::npos);
  EXPECT_NE(headers.find("BIND_NOW"), std::string::npos) << headers;
  const std::string symbols = outputOf("readelf -sW " + program);
  EXPECT_NE(symbols.find("__stack_chk_fail"), std::string::npos);
  EXPECT_NE(symbols.find("__strcpy_chk@"), std::string::npos) << "checked calls of the C library";
}

}  // namespace
}  // namespace tarvo::test
