// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QWidget;

namespace tarvo {

class Binder;
struct PickerOutlets;

// The picker: a filter over a list of dictionaries with check boxes, what can be done with the list and with the
// user's folders, how many still fit, OK and Cancel. Escape and the close box cancel.
QDialog* buildPicker(PickerOutlets& outlets, Binder& binder, QWidget* parent);

}  // namespace tarvo
