// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

class QGridLayout;
class QLabel;
class QWidget;

namespace tarvo {

class Binder;
class Control;

// Rows of label and control below headings, all labels of a form in one column.
// Duty: right-aligned labels that name their control (buddies: a click or a screen reader on the label reaches the
// control), gaps of the grid. Not: making the controls. Tab goes through them in the order in which they were made.
class Form {
 public:
  // Gives the widget its layout, with these margins around it.
  Form(Binder& binder, QWidget& page, int margin = 0);
  QLabel* heading(std::string_view textKey);
  void row(const Control& control, QWidget* field);  // the label is the control's
  void wide(QWidget* field);                         // over both columns
  void closeRows();                                  // the rest of the page stays empty below the rows

 private:
  Binder& binder_;
  QWidget& page_;
  QGridLayout& grid_;
  int next_ = 0;
};

}  // namespace tarvo
