// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>

#include "tests/console/verbs/verb_test.h"
#include "tests/support/shell.h"

// open CODE: tarvoctl lies beside a program that stands for the window and tells how it was called.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

class OpenVerb : public testing::Test {
 protected:
  OpenVerb() {
    fs::create_directories(folder_ / "bin");
    fs::copy_file(TARVOCTL, folder_ / "bin/tarvoctl");
  }
  void putWindowProgram(const std::string& script) const {
    folder_.write("bin/tarvo-manager", script);
    fs::permissions(folder_ / "bin/tarvo-manager", fs::perms::owner_all);
  }
  ToolResult run(const std::string& words) const {
    const int status =
        std::system((test::quoted(folder_ / "bin/tarvoctl") + " --root " + test::quoted(folder_.path()) + " " + words +
                     " > " + test::quoted(folder_ / "out") + " 2> " + test::quoted(folder_ / "err"))
                        .c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder_.read("out"), folder_.read("err")};
  }
  const TemporaryFolder folder_;
};

constexpr const char* telling = "#!/bin/sh\nfor word in \"$@\"; do echo \"$word\"; done\nexit 7\n";

TEST_F(OpenVerb, becomesTheWindowProgram) {
  putWindowProgram(telling);
  const ToolResult result = run("open tQB8");
  EXPECT_EQ(result.out, "--root=" + folder_.path() + "\n--open=tQB8\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 7);
}

TEST_F(OpenVerb, handsItsOptionsOn) {
  putWindowProgram(telling);
  folder_.write("a.strings", "<plist><dict/></plist>");
  const std::string strings = test::quoted(folder_ / "a.strings");
  const ToolResult result =
      run("--home " + test::quoted(folder_ / "home") + " --language ja --strings none --strings " + strings +
          " --engine none --bus-name a.b open ''");
  EXPECT_EQ(result.out, "--root=" + folder_.path() + "\n--home=" + folder_ / "home" +
                            "\n--language=ja\n--strings=none\n--strings=" + folder_ / "a.strings" +
                            "\n--engine=none\n--bus-name=a.b\n--open=\n");
  EXPECT_EQ(result.status, 7);
}

TEST_F(OpenVerb, aMissingWindowProgramIsTold) {
  const ToolResult result = run("open tQB8");
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "tarvo-manager is not there: it belongs beside this program, in " + folder_ / "bin" + "\n");
  EXPECT_EQ(result.status, 1);
}

TEST_F(OpenVerb, aWindowProgramThatCannotBeStartedIsTold) {
  putWindowProgram("#!/no/such/interpreter\n");
  const ToolResult result = run("open tQB8");
  EXPECT_EQ(result.err, folder_ / "bin/tarvo-manager" + ": cannot be started; it is not there\n");
  EXPECT_EQ(result.status, 1);
}

}  // namespace
}  // namespace tarvo::test
