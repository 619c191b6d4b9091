// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include "console/script/scenario_shell.h"
#include "qt/bind/binder.h"
#include "qt/window/qt_panels.h"
#include "qt/window/qt_windows.h"
#include "tests/qt/qt_hand.h"

namespace tarvo::test {

// The window with the frames of a scenario: equal on every platform.
class ScenarioWindows : public QtWindows {
 public:
  explicit ScenarioWindows(const ScenarioScreen& screen) : QtWindows(Figures::fixed), screen_(screen) {}
  Rect mainScreen() override { return screen_.mainScreen; }

 private:
  const ScenarioScreen& screen_;
};

// The real window under a scenario, off-screen: widgets, dialogs and alerts are the product's.
class QtScenarioShell : public ScenarioShell {
 public:
  QtScenarioShell();
  WindowHost& windowHost() override { return windows_; }
  Hand& hand() override { return *hand_; }
  void programMade(Program&) override {}
  void programConstructed(Program& program) override;
  void programEnds(Program& program) override;
  int runAlert(const Alert& alert, int button) override;
  void beginAlertSheet(Window& host, const Alert& alert, int button, std::function<void(int)> handler) override;

  QtWindows& windows() { return windows_; }
  Registry& registry() { return binder_->registry(); }  // of the program that is up

 private:
  ScenarioWindows windows_;
  QtPanels panels_;
  std::optional<Binder> binder_;
  std::optional<QtHand> hand_;
};

}  // namespace tarvo::test
