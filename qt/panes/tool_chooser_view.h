// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace tarvo {

class Binder;
class Interface;

// The sibling tools as three segmented controls side by side, one icon a tool.
QWidget* buildToolChooser(Interface& interface, Binder& binder, QWidget* parent);

}  // namespace tarvo
