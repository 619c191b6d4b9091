// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace tarvo {

class Binder;
class Interface;

// The pane of Office add-ins: the applications, and the tool that the macros start.
QWidget* buildOfficePane(Interface& interface, Binder& binder, QWidget* parent);

}  // namespace tarvo
