// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "qt/panes/direction_page.h"

namespace tarvo {

// The dictionary lists of a direction, one tab a list. The technical dictionaries stand in their order, beside the
// buttons that change it, their keys (Alt+Up, Alt+Down, Delete) and how many of how many there are; the user's own
// dictionaries and memories, for looking at, beside a button for a new one and one that opens their folder.
QWidget* buildDictionaryPage(Interface& interface, Binder& binder, Direction direction, QWidget* parent);

}  // namespace tarvo
