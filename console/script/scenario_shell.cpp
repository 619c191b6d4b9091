// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/scenario_shell.h"

namespace tarvo {

namespace {
constexpr float titleBarHeight = 22, toolbarHeightShown = 56;
}

WindowHeights ScenarioScreen::heights(const Window& window, bool toolbarHidden) {
  const float withTitleBar = window.frame().height;
  const float content = withTitleBar - titleBarHeight;
  return {.hasToolbar = true,
          .toolbarHidden = toolbarHidden,
          .contentHeight = content,
          .contentHeightToggled = withTitleBar,
          .contentViewHeight = toolbarHidden ? content : content - toolbarHeightShown};
}

}  // namespace tarvo
