// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/window_geometry.h"

#include <gtest/gtest.h>

#include <random>

namespace tarvo {
namespace {

struct Switch {
  Rect frame;
  Size pane;
  Rect expected;
};
class PaneSwitch : public testing::TestWithParam<Switch> {};

TEST_P(PaneSwitch, keepsTheLeftAndTheTopEdge) {
  const Rect frame = paneFrame(GetParam().frame, GetParam().pane, 22, 56);
  EXPECT_EQ(frame, GetParam().expected);
  EXPECT_EQ(frame.top(), GetParam().frame.top());
}

INSTANTIATE_TEST_SUITE_P(Panes, PaneSwitch,
                         testing::Values(Switch{{100, 200, 600, 500}, {720, 400}, {100, 222, 720, 478}},
                                         Switch{{100, 222, 720, 478}, {500, 250}, {100, 372, 500, 328}},
                                         Switch{{100, 200, 600, 500}, {600, 422}, {100, 200, 600, 500}},
                                         Switch{{0, 100, 600, 300}, {400, 600}, {0, -278, 400, 678}}));

TEST(WindowGeometry, roundsToSinglePrecisionAfterEachStep) {
  const Rect frame{0.1F, 16777216.0F, 600, 1};
  const float top = frame.y + frame.height;
  const float expected = (top - 400.5F) - (22.25F + 56.125F);
  EXPECT_EQ(paneFrame(frame, {700, 400.5F}, 22.25F, 56.125F).y, expected);
}

// Numbers of which each other order of the sums makes another frame.
TEST(WindowGeometry, addsInOneOrder) {
  EXPECT_EQ(paneFrame({0, 16777216.0F, 600, 3}, {600, 400.5F}, 0.5F, 0.5F).y, 16776819.0F);
  EXPECT_EQ(paneFrame({}, {600, 16777216.0F}, 1, 2).height, 16777218.0F);
}

TEST(WindowGeometry, returnsToTheSameFrameAfterTwoSwitches) {
  std::mt19937 random(5);
  const auto number = [&] { return static_cast<float>(random() % 2000) - 500; };
  for (int i = 0; i < 1000; ++i) {
    const Size first{number(), number()}, second{number(), number()};
    const Rect start = paneFrame({number(), number(), number(), number()}, first, 22, 56);
    EXPECT_EQ(paneFrame(paneFrame(start, second, 22, 56), first, 22, 56), start);
  }
}

TEST(WindowGeometry, measuresTheToolbarAsWhatTheContentViewLacks) {
  EXPECT_EQ(toolbarHeight({true, false, 478, 500, 422}), 56);
  EXPECT_EQ(toolbarHeight({true, true, 478, 500, 422}), 0);
  EXPECT_EQ(toolbarHeight({false, false, 478, 500, 422}), 0);
}

TEST(WindowGeometry, measuresTheTitleBarByTogglingItAlsoWhereThereIsNone) {
  EXPECT_EQ(titlebarHeight({true, false, 478, 500, 422}), 22);
  EXPECT_EQ(titlebarHeight({false, false, 500, 478, 500}), -22);
}

}  // namespace
}  // namespace tarvo
