// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/panels.h"

namespace tarvo {

class Covers;

// The shell's panels, entered in the record of what covers the windows while they are up. Everything of the program
// works with these.
class CoveringPanels : public Panels {
 public:
  CoveringPanels(Panels& panels, Covers& covers) : panels_(panels), covers_(covers) {}
  void beep() override;
  void tell(const std::string& text) override;
  int runAlertPanel(const Alert& alert) override;
  void beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> handler) override;
  std::optional<DiskPath> runOpenPanel(const OpenPanel& panel) override;
  void beginSavePanel(Window& host, const SavePanel& panel,
                      std::function<void(int code, const DiskPath& path)> handler) override;

 private:
  Panels& panels_;
  Covers& covers_;
};

}  // namespace tarvo
