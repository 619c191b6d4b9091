// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <set>

#include "console/script/scenario_shell.h"

namespace tarvo {

// Windows without a screen. A modal run runs the lines of the script that follow until one of them stops it.
class MemoryWindows : public WindowHost {
 public:
  // screen: the measures; outlives this object.
  explicit MemoryWindows(const ScenarioScreen& screen) : screen_(screen) {}
  std::function<bool()> step;           // the next line of the script; without one a modal run ends at once
  std::function<bool()> toolbarHidden;  // of the main window; without one it is shown

  void show(Window&) override {}
  void hide(Window&) override {}
  void applyFrame(Window&, bool) override {}
  void runModal(Window& window) override;
  void stopModal(Window& window) override { stopped_.insert(&window); }
  WindowHeights heights(const Window& window) override;
  Size paneSize(Pane pane) override { return ScenarioScreen::paneSize(pane); }
  Rect mainScreen() override { return screen_.mainScreen; }

 private:
  const ScenarioScreen& screen_;
  std::set<const Window*> stopped_;
};

}  // namespace tarvo
