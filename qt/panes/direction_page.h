// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace tarvo {

class Binder;
class Interface;

enum class Direction { englishToJapanese, japaneseToEnglish };

// One direction of translation: a pop-up that chooses between its dictionaries and its options, and the chosen page.
QWidget* buildDirectionPage(Interface& interface, Binder& binder, Direction direction, QWidget* parent);

}  // namespace tarvo
