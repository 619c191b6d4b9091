// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarvo {
class Interface;
}

namespace tarvo::test {

// docs/controls.md as the interface table has it.
std::string controlsPage(const Interface& interface);

}  // namespace tarvo::test
