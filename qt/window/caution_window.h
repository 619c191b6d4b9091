// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QWidget;

namespace tarvo {

class Binder;
class Interface;

// The caution on small screens: a text, "do not show again" and a button that closes it.
QDialog* buildScreenCaution(Interface& interface, Binder& binder, QWidget* parent);

}  // namespace tarvo
