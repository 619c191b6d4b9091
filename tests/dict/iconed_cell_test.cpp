// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/iconed_cell.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

constexpr Rect frame{10, 40, 200, 20};

TEST(IconedCell, drawsTheIconUpwardsFromItsFootInAFlippedView) {
  const IconedCell cell = iconedCell(frame, true, true);
  EXPECT_EQ(cell.imageX, 13);
  EXPECT_EQ(cell.imageY, 56);
  EXPECT_EQ(cell.text, (Rect{32, 40, 178, 20}));
}

TEST(IconedCell, drawsTheIconAtTheFramesOriginOtherwise) {
  const IconedCell cell = iconedCell(frame, true, false);
  EXPECT_EQ(cell.imageX, 13);
  EXPECT_EQ(cell.imageY, 40);
  EXPECT_EQ(cell.text, (Rect{32, 40, 178, 20}));
}

TEST(IconedCell, withoutAnIconTheTextBeginsAtTheMargin) {
  for (const bool flipped : {true, false}) {
    EXPECT_EQ(iconedCell(frame, false, flipped).text, (Rect{13, 40, 197, 20}));
  }
}

TEST(IconedCell, iconsAreSixteenPointsWideAndHigh) { EXPECT_EQ(cellIconSize, (Size{16, 16})); }

}  // namespace
}  // namespace tarvo
