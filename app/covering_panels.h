// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/services/panels.h"

namespace tarvo {

class Covers;

// The shell's panels, entered in the record of what covers the windows while they are up; a line that is told stands in
// the window too. Everything of the program works with these.
class CoveringPanels : public Panels {
 public:
  // show: puts a line that was told into the window.
  CoveringPanels(Panels& panels, Covers& covers, std::function<void(const std::string& text)> show)
      : panels_(panels), covers_(covers), show_(std::move(show)) {}
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
  std::function<void(const std::string& text)> show_;
};

}  // namespace tarvo
