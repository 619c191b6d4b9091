// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "app/panes.h"
#include "platform/controls/windows.h"
#include "platform/services/panels.h"

namespace tarvo {

class Hand;
class Program;

// The measures with which every shell computes frames in a scenario, so that the same lines give the same frames:
// points, a title bar of 22, a toolbar of 56, the panes of the interface table.
struct ScenarioScreen {
  Rect mainScreen{0, 0, 1440, 900};  // the line "screen W H" changes it
  static WindowHeights heights(const Window& window, bool toolbarHidden);
  static Size paneSize(Pane pane) { return rowOf(pane).size; }
};

// What a scenario needs of a shell: a window host, a hand, and somebody who answers alerts. File panels, the engine,
// the clock and the desktop are scripted for every shell.
// The order of the calls: programMade, then windowHost() is used, then programConstructed, from then on hand() is used,
// then programEnds; again for a next program. A shell outlives the session.
class ScenarioShell {
 public:
  virtual ~ScenarioShell() = default;
  ScenarioScreen screen;  // windowHost() answers heights, panes and screen by it

  virtual WindowHost& windowHost() = 0;  // the same one for every program
  virtual Hand& hand() = 0;
  // The program exists and nothing of it has run.
  virtual void programMade(Program& program) = 0;
  // Both controllers are constructed, the interface is connected and not yet loaded: views may be attached.
  virtual void programConstructed(Program& program) = 0;
  // The program is about to be destroyed; views go now. Comes without programConstructed when construction failed.
  virtual void programEnds(Program& program) = 0;

  // Shows the alert, has the user press that button (0 the first), and answers the button that came back. While it
  // blocks, no line of the script may run (Interpreter::isHeld).
  virtual int runAlert(const Alert& alert, int button) = 0;
  // The same as a sheet over a window; may return before it is answered.
  virtual void beginAlertSheet(Window& host, const Alert& alert, int button, std::function<void(int)> handler) = 0;
};

}  // namespace tarvo
