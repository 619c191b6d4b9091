// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

namespace tarvo {

// A line of a script that cannot be carried out; what() is the reason.
struct ScriptError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Thrown out of a modal run in which the script ended; the interpreter knows why it did.
struct Unfinished {};

}  // namespace tarvo
