// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "platform/services/panels.h"

namespace tarvo {

// An alert: bold title, message, further details for who wants them, buttons.
// The first button is the default and stands rightmost; Escape and the close box stand for the last one, unless the
// alert names another.
// The dialog's result is the number of the button.
class AlertDialog : public QDialog {
 public:
  AlertDialog(const Alert& alert, QWidget* parent);
  void reject() override;

 private:
  int cancel_;  // the button that Escape presses
};

}  // namespace tarvo
