// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QWidget;

namespace tarvo {

class Binder;
struct EarlierStylesOutlets;

// The window of earlier styles: the list, below it what restoring would change, at the foot the ways back. Escape
// closes. It can be made larger.
QDialog* buildEarlierStyles(EarlierStylesOutlets& outlets, Binder& binder, QWidget* parent);

}  // namespace tarvo
