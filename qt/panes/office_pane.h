// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace tarvo {

class Binder;
class Interface;

// The pane of office add-ins: which tool the macros start.
QWidget* buildOfficePane(Interface& interface, Binder& binder, QWidget* parent);

}  // namespace tarvo
