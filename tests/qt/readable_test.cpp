// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/readable.h"

#include <gtest/gtest.h>

#include <QLabel>

namespace tarvo {
namespace {

QString words(int count) { return QStringLiteral("word ").repeated(count).trimmed(); }

TEST(ReadableText, takesNoMoreLinesThanAtItsFullWidth) {
  for (int count = 1; count < 40; ++count) {
    QLabel label(words(count));
    wrapReadably(label);
    const int full = readableWidth(label.fontMetrics());
    ASSERT_LE(label.width(), full);
    EXPECT_EQ(label.heightForWidth(label.width()), label.heightForWidth(full)) << count;
  }
}

TEST(ReadableText, isNarrowedUntilItsLastLineIsNoRemnant) {
  QLabel label;
  label.setWordWrap(true);
  const int full = readableWidth(label.fontMetrics());
  int count = 1;
  do {
    label.setText(words(++count));
  } while (label.heightForWidth(full) == label.heightForWidth(16000));
  wrapReadably(label);  // one word too many for a line
  EXPECT_LT(label.width(), full);
}

}  // namespace
}  // namespace tarvo
