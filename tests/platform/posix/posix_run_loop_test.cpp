// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/posix_run_loop.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvo {
namespace {

class PosixRunLoopTest : public testing::Test {
 protected:
  std::function<void()> note(const std::string& what) {
    return [this, what] { ran += what; };
  }
  PosixRunLoop loop;
  std::string ran;
};

TEST_F(PosixRunLoopTest, postedCallsRunOnceInTheirOrderUntilNoneIsLeft) {
  loop.post(note("a"));
  loop.post([this] {
    ran += "b";
    loop.post(note("d"));
  });
  loop.post(note("c"));
  EXPECT_EQ(ran, "");
  loop.run();
  EXPECT_EQ(ran, "abcd");
  loop.run();
  EXPECT_EQ(ran, "abcd");
}

TEST_F(PosixRunLoopTest, timersFireOnceInTheOrderOfTheirTimes) {
  loop.after(0.03, note("c"));
  loop.after(0.01, note("a"));
  loop.after(0.02, note("b"));
  loop.after(-1, note("-"));
  loop.post(note("p"));
  const auto start = std::chrono::steady_clock::now();
  loop.run();
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(30));
  EXPECT_EQ(ran, "-pabc");
}

TEST_F(PosixRunLoopTest, timersOfOneMomentKeepTheirOrder) {
  for (const char* what : {"a", "b", "c"}) loop.after(0, note(what));
  loop.run();
  EXPECT_EQ(ran, "abc");
}

TEST_F(PosixRunLoopTest, aCancelledTimerDoesNotFire) {
  const RunLoop::Timer timer = loop.after(0, note("x"));
  const RunLoop::Timer other = loop.after(0.01, note("y"));
  EXPECT_NE(timer, 0U);
  EXPECT_NE(timer, other);
  loop.cancel(timer);
  loop.cancel(timer);
  loop.cancel(0);
  loop.run();
  EXPECT_EQ(ran, "y");
}

TEST_F(PosixRunLoopTest, aTimerMayCancelAnotherThatIsDue) {
  RunLoop::Timer second = 0;
  loop.after(0, [&] {
    ran += "a";
    loop.cancel(second);
  });
  second = loop.after(0, note("b"));
  loop.run();
  EXPECT_EQ(ran, "a");
}

TEST_F(PosixRunLoopTest, stopEndsTheInnermostRunAndLeavesTheRest) {
  loop.post([this] {
    ran += "(";
    loop.run();
    ran += ")";
  });
  loop.post([this] {
    ran += "a";
    loop.stop();
  });
  loop.post(note("b"));
  loop.run();
  EXPECT_EQ(ran, "(a)b");
}

TEST_F(PosixRunLoopTest, theNextRunGoesOnWhereAStoppedOneLeft) {
  loop.post([this] { loop.stop(); });
  loop.post(note("b"));
  loop.run();
  EXPECT_EQ(ran, "");
  loop.run();
  EXPECT_EQ(ran, "b");
}

}  // namespace
}  // namespace tarvo
