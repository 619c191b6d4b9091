// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/services/result.h"

// This process and the user it runs for, as the system knows them.
namespace tarvo {

// The file that runs, links resolved. Source: /proc/self/exe.
Result<std::string> programFile();
std::string loginName();  // "" when the system knows none
std::string loginHome();  // the same
// Becomes the program: its file and the words of its command line, the program's name first. Answers only when that
// cannot be.
Failure becomeProgram(const std::string& file, std::vector<std::string> words);

}  // namespace tarvo
