// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/readable.h"

#include <QLabel>

#include "qt/look/metrics.h"

namespace tarvo {
namespace {

constexpr int widest = 24, narrowest = 21;  // in heights of a line

}  // namespace

int readableWidth(const QFontMetrics& font) { return widest * font.height(); }

void wrapReadably(QLabel& label) {
  label.setWordWrap(true);
  const int least = narrowest * label.fontMetrics().height();
  int width = readableWidth(label.fontMetrics());
  const int height = label.heightForWidth(width);
  while (width - metrics::grid >= least && label.heightForWidth(width - metrics::grid) == height) {
    width -= metrics::grid;
  }
  label.setFixedWidth(width);
}

}  // namespace tarvo
