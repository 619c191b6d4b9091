// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace tarvo {

class Binder;
class Interface;

// The pane of mail translation.
QWidget* buildMailPane(Interface& interface, Binder& binder, QWidget* parent);

}  // namespace tarvo
