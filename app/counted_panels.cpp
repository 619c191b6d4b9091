// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/counted_panels.h"

#include <utility>

namespace tarvo {

void CountedPanels::beep() { panels_.beep(); }

int CountedPanels::runAlertPanel(const Alert& alert) {
  ++running_;
  const int button = panels_.runAlertPanel(alert);
  --running_;
  return button;
}

std::optional<std::string> CountedPanels::runOpenPanel(const OpenPanel& panel) {
  ++running_;
  std::optional<std::string> path = panels_.runOpenPanel(panel);
  --running_;
  return path;
}

void CountedPanels::beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> handler) {
  hosts_.insert(&host);
  panels_.beginAlertSheet(host, alert, [this, &host, handler = std::move(handler)](int button) {
    hosts_.erase(hosts_.find(&host));
    handler(button);
  });
}

void CountedPanels::beginSavePanel(Window& host, const SavePanel& panel,
                                   std::function<void(int code, const std::string& path)> handler) {
  hosts_.insert(&host);
  panels_.beginSavePanel(host, panel, [this, &host, handler = std::move(handler)](int code, const std::string& path) {
    hosts_.erase(hosts_.find(&host));
    handler(code, path);
  });
}

}  // namespace tarvo
