// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/counted_panels.h"

#include <utility>

namespace tarvo {

void CountedPanels::beep() { panels_.beep(); }

int CountedPanels::runAlertPanel(const Alert& alert) {
  ++up_;
  const int button = panels_.runAlertPanel(alert);
  --up_;
  return button;
}

void CountedPanels::beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> handler) {
  ++up_;
  panels_.beginAlertSheet(host, alert, [this, handler = std::move(handler)](int button) {
    --up_;
    handler(button);
  });
}

std::optional<std::string> CountedPanels::runOpenPanel(const OpenPanel& panel) {
  ++up_;
  std::optional<std::string> path = panels_.runOpenPanel(panel);
  --up_;
  return path;
}

void CountedPanels::beginSavePanel(Window& host, const SavePanel& panel,
                                   std::function<void(int code, const std::string& path)> handler) {
  ++up_;
  panels_.beginSavePanel(host, panel, [this, handler = std::move(handler)](int code, const std::string& path) {
    --up_;
    handler(code, path);
  });
}

}  // namespace tarvo
