// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/opener.h"

#include <gtest/gtest.h>

#include "tests/support/fake_shell.h"
#include "tests/support/memory_files.h"

namespace tarvo::test {
namespace {

class OpenerTest : public testing::Test {
 protected:
  OpenerTest() {
    opener_.didFail = [this](const Failure& failure) { told_.push_back(failure); };
    files_.put("/there", "");
  }
  void openAll() {
    opener_.openFile(DiskPath("/there"));
    opener_.openAddress("https://page.example/");
    opener_.launchApplication("Some Editor.app");
  }
  MemoryFiles files_;
  FakeWorkspace workspace_;
  Opener opener_{workspace_, files_};
  std::vector<Failure> told_;
};

TEST_F(OpenerTest, whatTheDesktopTakesIsNotTold) {
  openAll();
  EXPECT_TRUE(told_.empty());
  EXPECT_EQ(workspace_.opened, Log{"/there"});
  EXPECT_EQ(workspace_.addresses, Log{"https://page.example/"});
  EXPECT_EQ(workspace_.launched, Log{"Some Editor.app"});
}

TEST_F(OpenerTest, whatTheDesktopRefusesIsToldOnceEach) {
  workspace_.refuses = true;
  openAll();
  const std::vector<Failure> expected{{"/there", Attempt::open, Reason::noProgram},
                                      {"https://page.example/", Attempt::open, Reason::noProgram},
                                      {"Some Editor.app", Attempt::start, Reason::noProgram}};
  EXPECT_EQ(told_, expected);
}

TEST_F(OpenerTest, aFolderThatIsGoneIsToldAndTheDesktopIsAskedAllTheSame) {
  workspace_.refuses = true;
  opener_.openFile(DiskPath("/gone"));
  EXPECT_EQ(workspace_.opened, Log{"/gone"});
  const std::vector<Failure> expected{
      {"/gone", Attempt::open, std::make_error_code(std::errc::no_such_file_or_directory)}};
  EXPECT_EQ(told_, expected);
}

TEST_F(OpenerTest, withoutAListenerNothingIsToldAndNothingBreaks) {
  workspace_.refuses = true;
  opener_.didFail = nullptr;
  openAll();
  EXPECT_EQ(workspace_.opened.size(), 1U);
}

}  // namespace
}  // namespace tarvo::test
