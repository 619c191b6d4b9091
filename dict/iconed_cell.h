// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/geometry.h"

// Where a table cell draws a small icon and the text behind it. Points, in the coordinates of the view.
namespace tarvo {

inline constexpr Size cellIconSize{16, 16};
inline constexpr float cellMargin = 3;  // before the icon, and between icon and text

struct IconedCell {
  float imageX = 0, imageY = 0;  // the icon is drawn upwards from here, whichever way the view counts
  Rect text;
};

// flipped: the view counts y downwards. Without an image only the text's place means anything.
inline IconedCell iconedCell(const Rect& frame, bool hasImage, bool flipped) {
  const float indent = hasImage ? cellMargin + cellIconSize.width + cellMargin : cellMargin;
  return {frame.x + cellMargin,
          frame.y + (flipped ? cellIconSize.height : 0),
          {frame.x + indent, frame.y, frame.width - indent, frame.height}};
}

}  // namespace tarvo
