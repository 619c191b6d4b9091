// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/window_geometry.h"

namespace tarvo {

float toolbarHeight(const WindowHeights& heights) {
  if (!heights.hasToolbar || heights.toolbarHidden) return 0;
  return heights.contentHeight - heights.contentViewHeight;
}

float titlebarHeight(const WindowHeights& heights) { return heights.contentHeightToggled - heights.contentHeight; }

Rect paneFrame(const Rect& frame, Size pane, float titlebar, float toolbar) {
  const float top = frame.y + frame.height;
  const float abovePane = top - pane.height;
  const float decorations = titlebar + toolbar;
  return {frame.x, abovePane - decorations, pane.width, (pane.height + titlebar) + toolbar};
}

}  // namespace tarvo
