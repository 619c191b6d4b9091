// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "style/direction.h"

class QWidget;

namespace tarvo {

class Binder;
class Interface;

// One direction of translation: a pop-up that chooses between its dictionaries and its options, and the chosen page.
QWidget* buildDirectionPage(Interface& interface, Binder& binder, Direction direction, QWidget* parent);

}  // namespace tarvo
