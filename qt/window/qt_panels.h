// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/panels.h"

class QWidget;

namespace tarvo {

// Alerts and file panels as dialogs of the desktop.
class QtPanels : public Panels {
 public:
  // host: the widget of a window, null when it has none (yet). sheetTop: where sheets hang in it.
  explicit QtPanels(std::function<QWidget*(Window*)> host, std::function<int()> sheetTop);
  void beep() override;
  int runAlertPanel(const Alert& alert) override;
  void beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> ended) override;
  std::optional<std::string> runOpenPanel(const OpenPanel& panel) override;
  void beginSavePanel(Window& host, const SavePanel& panel,
                      std::function<void(int code, const std::string& path)> ended) override;

 private:
  std::function<QWidget*(Window*)> host_;
  std::function<int()> sheetTop_;
};

}  // namespace tarvo
