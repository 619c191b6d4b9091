// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "qt/panes/direction_page.h"

namespace tarvo {

// The dictionary lists of a direction, one tab a list: the technical dictionaries in their order and the buttons that
// change it.
QWidget* buildDictionaryPage(Interface& interface, Binder& binder, Direction direction, QWidget* parent);

}  // namespace tarvo
