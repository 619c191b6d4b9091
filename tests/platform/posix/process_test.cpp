// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/process.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvo {
namespace {

TEST(Process, knowsItsOwnFile) {
  ASSERT_TRUE(programFile());
  EXPECT_EQ(programFile()->name(), "test_platform");
}

TEST(Process, becomesAnotherProgramWithItsWords) {
  const pid_t child = ::fork();
  if (child == 0) {
    const Failure failure = becomeProgram(DiskPath("/bin/sh"), {"sh", "-c", "exit 7"});
    ::_exit(failure.cause ? 1 : 2);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 7);
}

TEST(Process, saysWhyItCannotBecomeAProgram) {
  EXPECT_EQ(becomeProgram(DiskPath("/nowhere"), {"nowhere"}),
            (Failure{"/nowhere", Attempt::start, std::make_error_code(std::errc::no_such_file_or_directory)}));
}

}  // namespace
}  // namespace tarvo
