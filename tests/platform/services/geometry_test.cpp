// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/geometry.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace tarvo {
namespace {

TEST(SavedFrame, isWrittenAsEightPlainNumbers) {
  EXPECT_EQ(savedFrameString({100, 200.5F, 640, 480}, {0, 0, 1440, 900}), "100 200.5 640 480 0 0 1440 900 ");
  EXPECT_EQ(savedFrameString({-0.1F, 1e-7F, 1e6F, 16777216}, {0, 0, 100000, 1}),
            "-0.1 0.0000001 1000000 16777216 0 0 100000 1 ");
}

TEST(SavedFrame, everyFloatReadsBackAsItself) {
  std::mt19937 random(7);
  const auto number = [&random] {
    float value = NAN;
    while (!std::isfinite(value)) value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    return value;
  };
  for (int i = 0; i < 20000; ++i) {
    const Rect frame{number(), number(), std::fabs(number()) + 1, std::fabs(number()) + 1};
    ASSERT_EQ(frameFromSavedString(savedFrameString(frame, {})), frame);
  }
}

TEST(SavedFrame, theFirstFourNumbersDecide) {
  const Rect frame{1, -2.5F, 30, 40};
  for (const char* good : {"1 -2.5 30 40 0 0 1440 900 ", "1 -2.5 30 40", "  1  -2.5 30 40 x y", "1 -25e-1 3e1 40 "}) {
    EXPECT_EQ(frameFromSavedString(good), frame) << good;
  }
  for (const char* bad : {"", " ", "1 2 3", "1 2 3 ", "1 2 3 x", "x 1 2 3 4", "1,2,3,4", "1 2 30 40x", "1 2 nan 40",
                          "inf 2 30 40", "1 2 1e99 40", "1 2 30 +40"}) {
    EXPECT_EQ(frameFromSavedString(bad), std::nullopt) << bad;
  }
}

}  // namespace
}  // namespace tarvo
