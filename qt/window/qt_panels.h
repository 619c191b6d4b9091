// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/services/panels.h"

class QDialog;
class QWidget;

namespace tarvo {

// Alerts and file panels as dialogs of the desktop; the save panel hangs in its window as sheets do.
class QtPanels : public Panels {
 public:
  // How panels find their surroundings.
  struct Surroundings {
    std::function<QWidget*(Window&)> host;             // the widget of a window, null when it has none (yet)
    std::function<void(QDialog&, Window& host)> hang;  // opens a dialog as a sheet over it
    std::string detailsTitle = {};                     // of the button that brings up the details of an alert
  };
  explicit QtPanels(Surroundings surroundings);
  void beep() override;
  void tell(const std::string& text) override;
  int runAlertPanel(const Alert& alert) override;
  void beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> ended) override;
  std::optional<DiskPath> runOpenPanel(const OpenPanel& panel) override;
  void beginSavePanel(Window& host, const SavePanel& panel,
                      std::function<void(int code, const DiskPath& path)> ended) override;

 private:
  Surroundings surroundings_;
};

}  // namespace tarvo
