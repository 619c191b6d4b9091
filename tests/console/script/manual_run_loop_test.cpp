// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/manual_run_loop.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvo::test {
namespace {

TEST(ManualRunLoop, timersFireWhenTheirTimeHasCome) {
  ManualRunLoop loop;
  std::string order;
  loop.after(2, [&] { order += 'b'; });
  loop.after(1, [&] {
    order += 'a';
    loop.after(1, [&] { order += 'c'; });
  });
  const RunLoop::Timer gone = loop.after(1, [&] { order += 'x'; });
  loop.cancel(gone);
  loop.settle();
  EXPECT_EQ(order, "");
  loop.advance(1.999);
  EXPECT_EQ(order, "a");
  loop.advance(0.001);
  EXPECT_EQ(order, "abc");
}

TEST(ManualRunLoop, postedCallsRunInOrderAndMayPost) {
  ManualRunLoop loop;
  std::string order;
  loop.post([&] {
    order += '1';
    loop.post([&] { order += '3'; });
  });
  loop.post([&] { order += '2'; });
  EXPECT_EQ(order, "");
  loop.settle();
  EXPECT_EQ(order, "123");
}

}  // namespace
}  // namespace tarvo::test
