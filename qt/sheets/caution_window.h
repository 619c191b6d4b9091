// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QWidget;

namespace tarvo {

class Binder;
class Button;
class CheckBox;
class TextField;
class Window;

struct CautionControls {
  Window& window;
  TextField& text;
  Button& close;
  CheckBox* again = nullptr;  // "do not show again"; null: there is none
};

// A caution: a text and a button that closes it.
QDialog* buildCaution(const CautionControls& controls, Binder& binder, QWidget* parent);

}  // namespace tarvo
