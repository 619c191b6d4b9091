// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "qt/panes/direction_page.h"

namespace tarvo {

// The translation options of a direction in a scrolled form; from Japanese also the detailed ones.
QWidget* buildOptionPage(Interface& interface, Binder& binder, Direction direction, QWidget* parent);

}  // namespace tarvo
