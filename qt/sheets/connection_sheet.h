// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QWidget;

namespace tarvo {

class Binder;
struct ConnectionOutlets;

// The sheet before the first exchange with the style service: what happens, a box against asking again, one button.
QDialog* buildConnectionSheet(ConnectionOutlets& outlets, Binder& binder, QWidget* parent);

}  // namespace tarvo
