// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <string>

#include "platform/services/panels.h"

namespace tarvo {

// An alert: bold title, message, buttons; further details come up below the message for who presses their button, and
// take the keyboard then, so that assistive tools read them.
// The first button is the default and stands rightmost; Escape and the close box stand for the last one, unless the
// alert names another.
// The dialog's result is the number of the button.
class AlertDialog : public QDialog {
 public:
  // detailsTitle: of the button that brings up the details.
  AlertDialog(const Alert& alert, const std::string& detailsTitle, QWidget* parent);
  void reject() override;

 private:
  int cancel_;  // the button that Escape presses
};

}  // namespace tarvo
