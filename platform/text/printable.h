// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarvo {

// A text as a terminal may show it: control characters, what turns the direction of a line, and bytes that are no UTF-8
// stand as their bytes, "\x1B". Names of files and styles may hold any of them, and a terminal would obey.
std::string printable(std::string_view text);

}  // namespace tarvo
