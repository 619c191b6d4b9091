// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/services/result.h"
#include "style/sibling_tools.h"

namespace tarvo {

class StyleStore;
class Texts;
class UserDefaults;

// Makes a tool the current one, in the window as in a verb that has pulled styles: the store edits for it, the style
// that it remembers is chosen, and the settings remember the tool.
// chooseStyle: chooses the style of that index in the store, which writes the style file; with controls it goes through
// them. Not called where no style is remembered for any tool. What it fails with ends the switch and is answered; the
// settings name the former tool then.
Result<> switchTool(Tool tool, StyleStore& store, UserDefaults& defaults, const Texts& texts,
                    const std::function<Result<>(int index)>& chooseStyle);

}  // namespace tarvo
