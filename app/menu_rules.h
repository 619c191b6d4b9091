// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

// Which menu commands may be chosen. An item is enabled only when both controllers allow it.
namespace tarvo {

class Texts;
struct ProcessFlags;

// The style pane: importing and exporting a style need the pane in view.
bool stylePaneAllows(std::string_view title, std::string_view selectedPane, const Texts& texts);
// The main window: while a sheet of the style pane is open only the three help entries are left.
bool mainWindowAllows(std::string_view title, const ProcessFlags& flags, const Texts& texts);

}  // namespace tarvo
