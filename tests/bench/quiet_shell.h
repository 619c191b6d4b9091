// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

#include "platform/controls/windows.h"
#include "platform/services/panels.h"
#include "platform/services/workspace.h"

// A shell that shows nothing, so that only the program's own work is measured. An alert ends the measurement: what
// follows it would be no usual edit.
namespace tarvo {

class QuietWindows : public WindowHost {
 public:
  void show(Window&) override {}
  void hide(Window&) override {}
  void applyFrame(Window&, bool) override {}
  void runModal(Window&) override { throw std::logic_error("a modal window came up"); }
  void stopModal(Window&) override {}
  WindowHeights heights(const Window&) override { return {}; }
  Size paneSize(Pane) override { return {}; }
  Rect mainScreen() override { return {0, 0, 1440, 900}; }
};

class QuietPanels : public Panels {
 public:
  void beep() override {}
  void tell(const std::string&) override {}
  int runAlertPanel(const Alert& alert) override { throw std::logic_error(alert.title + " " + alert.message); }
  void beginAlertSheet(Window&, const Alert& alert, std::function<void(int)>) override { runAlertPanel(alert); }
  std::optional<DiskPath> runOpenPanel(const OpenPanel&) override { return std::nullopt; }
  void beginSavePanel(Window&, const SavePanel&, std::function<void(int, const DiskPath&)>) override {}
};

class QuietWorkspace : public Workspace {
 public:
  Result<> openFile(const DiskPath&) override { return {}; }
  Result<> openAddress(const std::string&) override { return {}; }
  Result<> launchApplication(const std::string&) override { return {}; }
  std::vector<ProductPath> launchedApplications() override { return {}; }
};

}  // namespace tarvo
