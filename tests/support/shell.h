// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// Programs of the system as independent oracles.
namespace tarvo::test {

// What the shell command prints; a failing command fails the test.
std::string outputOf(const std::string& command);
// A text as one word for the shell.
std::string quoted(std::string_view text);

}  // namespace tarvo::test
