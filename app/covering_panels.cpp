// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/covering_panels.h"

#include <utility>

#include "platform/controls/covers.h"

namespace tarvo {

void CoveringPanels::beep() { panels_.beep(); }

void CoveringPanels::tell(const std::string& text) {
  panels_.tell(text);
  show_(text);
}

int CoveringPanels::runAlertPanel(const Alert& alert) {
  const Covers::ModalRun run(covers_, nullptr);
  return panels_.runAlertPanel(alert);
}

std::optional<DiskPath> CoveringPanels::runOpenPanel(const OpenPanel& panel) {
  const Covers::ModalRun run(covers_, nullptr);
  return panels_.runOpenPanel(panel);
}

void CoveringPanels::beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> handler) {
  covers_.beginSheet(host, nullptr);
  panels_.beginAlertSheet(host, alert, [this, &host, handler = std::move(handler)](int button) {
    covers_.endSheet(host, nullptr, [&] { handler(button); });
  });
}

void CoveringPanels::beginSavePanel(Window& host, const SavePanel& panel,
                                    std::function<void(int code, const DiskPath& path)> handler) {
  covers_.beginSheet(host, nullptr);
  panels_.beginSavePanel(host, panel, [this, &host, handler = std::move(handler)](int code, const DiskPath& path) {
    covers_.endSheet(host, nullptr, [&] { handler(code, path); });
  });
}

}  // namespace tarvo
