// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarvo::test {

// Kills the program again and again while it edits a home with so many styles. Fails the test where that lost anything.
// shell: "console" or "window"; script/soak kills it 500 times.
void killWhileItEdits(const std::string& shell, const std::string& program, int styles);

}  // namespace tarvo::test
