// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "console/script/memory_hand.h"
#include "console/script/memory_windows.h"
#include "console/script/scenario_shell.h"

namespace tarvo {

// The shell without a screen: what a script, a verb and most tests run on.
class MemoryShell : public ScenarioShell {
 public:
  MemoryShell() : windows_(screen) {}
  MemoryWindows& windowHost() override { return windows_; }
  Hand& hand() override { return hand_; }
  void programMade(Program& program) override;
  void programConstructed(Program&) override {}
  void programEnds(Program&) override { windows_.toolbarHidden = nullptr; }
  int runAlert(const Alert&, int button) override { return button; }
  void beginAlertSheet(Window&, const Alert&, int button, std::function<void(int)> handler) override {
    handler(button);
  }

 private:
  MemoryWindows windows_;
  MemoryHand hand_;
};

}  // namespace tarvo
