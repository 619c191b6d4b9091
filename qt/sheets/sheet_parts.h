// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QLabel;
class QLayout;
class QVBoxLayout;
class QWidget;

namespace tarvo {

class Binder;
class Button;
class Window;

// A dialog that stands for a window, as large as the rows that its column is given.
struct FixedDialog {
  QDialog* dialog;
  QVBoxLayout* rows;
};
FixedDialog buildFixedDialog(Window& window, Binder& binder, QWidget* parent);

// A sheet has no title bar: its title stands above its contents.
QLabel* buildHeading(const Window& window, QDialog* dialog);

// The row of buttons at the foot of a dialog: the default one, which Return presses, at its right end.
QLayout* buildFoot(Button* other, Button& first, Binder& binder, QDialog* dialog);

// Gives a dialog that is laid out the width at first, or what the screen has room for.
void beginWide(QDialog& dialog, int width);

}  // namespace tarvo
