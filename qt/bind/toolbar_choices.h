// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/toolbar.h"

class QAction;
class QComboBox;
class QListWidget;
class QPushButton;

// The ways in which a user customises the toolbar.
// Duty: pass on each choice at once; the bar follows the control. Not: making the widgets. The toolbar outlives them.
namespace tarvo {

class Binder;

// A list with a check box for each item that there is: ticked ones are shown, in the order of the list. up and down
// move its current row; reset brings the default order back. The last shown item stays.
void bindToolbarOrder(Toolbar& toolbar, Binder& binder, QListWidget& list, QPushButton& up, QPushButton& down,
                      QPushButton& reset);
// Three entries: icon and text, icon only, text only.
void bindToolbarDisplay(Toolbar& toolbar, Binder& binder, QComboBox& modes);
// One entry of a menu for a display mode; ticked while it is the present one at the time of the call.
void bindToolbarDisplay(Toolbar& toolbar, Toolbar::DisplayMode mode, QAction& action);

// Text keys of the display modes, in their order.
inline constexpr const char* displayModeKeys[] = {"Customize.IconAndText", "Customize.IconOnly", "Customize.TextOnly"};

}  // namespace tarvo
