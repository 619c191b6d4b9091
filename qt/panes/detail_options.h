// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace tarvo {

class Binder;
class Form;
class OptionRows;
struct OptionOutlets;

// The detailed options, each group under its heading, in the order of the option table within a group.
void addDetailOptions(OptionOutlets& outlets, Binder& binder, Form& form, OptionRows& rows, QWidget& page);

}  // namespace tarvo
