// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QWidget;

namespace tarvo {

class Binder;
struct NamingOutlets;

// The sheet in which a style is renamed: its name and two buttons. Return is OK, Escape is Cancel.
QDialog* buildNamingDialog(NamingOutlets& outlets, Binder& binder, QWidget* parent);

}  // namespace tarvo
