// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDialog>

#include "platform/services/panels.h"

namespace tarvo {

// The desktop's usual question for a file to write, in a form that can hang in a window.
// Duty: propose folder and name, see that the answer ends in the required type before the user is asked about
// replacing a file. Not: writing.
class SaveSheet : public QFileDialog {
 public:
  SaveSheet(const SavePanel& panel, QWidget* parent);
  // Valid once it was accepted.
  DiskPath path() const;
  void accept() override;

 private:
  std::string type_;
};

// "*.whstyle" in any case of letters, shown without the cases; "" for an empty list, which lets every file through.
QString nameFilter(const std::vector<std::string>& types);

}  // namespace tarvo
