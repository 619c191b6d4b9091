// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace tarvo {

// The line at the foot of the main window: one text, elided at its end where the window is too narrow. The whole text
// is its tool tip and what assistive tools read. It is hidden while it has none, and never widens
// the window. Not: deciding what is told.
class NoticeLine : public QLabel {
 public:
  explicit NoticeLine(QWidget* parent);
  void tell(const QString& text);

 private:
  void elide();
  QString text_;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
};

}  // namespace tarvo
