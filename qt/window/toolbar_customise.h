// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QWidget;

namespace tarvo {

class Binder;
class Toolbar;

// The dialog in which the user orders and hides the toolbar's items and chooses between icons and texts. Each change
// shows at once; there is nothing to cancel. Deletes itself when it is closed.
QDialog* buildToolbarCustomise(Toolbar& toolbar, Binder& binder, QWidget* parent);

}  // namespace tarvo
