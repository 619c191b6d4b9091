// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <set>

#include "platform/services/panels.h"

namespace tarvo {

// The shell's panels, counted while they are up: a request from outside must not come upon a question to the user.
class CountedPanels : public Panels {
 public:
  explicit CountedPanels(Panels& panels) : panels_(panels) {}
  bool isAnyUp() const { return running_ > 0 || !hosts_.empty(); }
  bool isSheetOver(const Window& host) const { return hosts_.contains(&host); }
  void beep() override;
  int runAlertPanel(const Alert& alert) override;
  void beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> handler) override;
  std::optional<std::string> runOpenPanel(const OpenPanel& panel) override;
  void beginSavePanel(Window& host, const SavePanel& panel,
                      std::function<void(int code, const std::string& path)> handler) override;

 private:
  Panels& panels_;
  int running_ = 0;
  std::multiset<const Window*> hosts_;
};

}  // namespace tarvo
