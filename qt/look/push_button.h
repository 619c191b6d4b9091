// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace tarvo {

// A button of a dialog which the Return key presses while it has the keyboard. Qt alone would press the default one
// then, or else move the look of it along with the keyboard.
class PushButton : public QPushButton {
 public:
  explicit PushButton(QWidget* parent) : QPushButton(parent) { setAutoDefault(false); }
  PushButton(const QString& text, QWidget* parent) : PushButton(parent) { setText(text); }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    isReturn&& isInDialog() ? click() : QPushButton::keyPressEvent(event);
  }

 private:
  bool isInDialog() const {
    const QWidget* above = this;
    while (above != nullptr && qobject_cast<const QDialog*>(above) == nullptr) above = above->parentWidget();
    return above != nullptr;
  }
};

}  // namespace tarvo
