// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/popup_width.h"

#include <QFontMetrics>
#include <algorithm>

#include "platform/controls/controls.h"
#include "qt/bind/binder.h"
#include "qt/look/metrics.h"

namespace tarvo {
namespace {

constexpr int sides = 2 * metrics::fieldPadding + metrics::popUpArrowWidth;  // around the title

}  // namespace

int popUpWidth(const PopUpButton& control, const QFontMetrics& font) {
  int widest = 0;
  for (const PopUpButton::Item& item : control.items()) {
    const int icon = item.image.empty() ? 0 : metrics::popUpIcon + metrics::checkBoxGap;
    widest = std::max(widest, font.horizontalAdvance(toQString(item.title)) + icon);
  }
  return std::max(metrics::popUpWidth, metrics::onGrid(widest + sides));
}

}  // namespace tarvo
