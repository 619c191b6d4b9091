// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "qt/guided_tour.h"
#include "tests/qt/main_window_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(MainWindowTest, theTourLeavesPicturesAndEndsTheProgram) {
  asksAboutTheService = true;
  start();
  testing::internal::CaptureStdout();
  EXPECT_TRUE(takeGuidedTour(*shell, folder / "pictures"));
  const std::string printed = testing::internal::GetCapturedStdout();
  EXPECT_TRUE(shell->program().isTerminated());
  EXPECT_EQ(folder.names("pictures").size(), 9U);
  EXPECT_NE(printed.find(shell->program().rooms().store.path().text()), std::string::npos);
}

TEST_F(MainWindowTest, aTourThatCannotLeavePicturesFails) {
  start();
  folder.write("pictures", "a file");
  testing::internal::CaptureStderr();
  EXPECT_FALSE(takeGuidedTour(*shell, folder / "pictures"));
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace tarvo::test
