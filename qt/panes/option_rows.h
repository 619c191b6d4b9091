// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QComboBox;
class QWidget;

namespace tarvo {

class Form;
class PopUpButton;

// Rows of options of one form.
// Duty: pop-ups of one width that holds the longest title among them; labels beside them or, where the text is so large
// that both do not fit beside each other, above them. Measure all pop-ups first.
class OptionRows {
 public:
  OptionRows(Form& form, QWidget& page);
  void measure(const PopUpButton& popup);
  void add(const PopUpButton& control, QComboBox* popup);

 private:
  bool isRoomBeside() const;
  Form& form_;
  QWidget& page_;
  int widestLabel_ = 0, widestPopup_ = 0;
};

}  // namespace tarvo
