// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/services/result.h"
#include "platform/text/paths.h"

// This process and the user it runs for, as the system knows them.
namespace tarvo {

// The file that runs, links resolved. Source: /proc/self/exe.
Result<DiskPath> programFile();
std::string loginName();  // "" when the system knows none
DiskPath loginHome();     // empty when it knows none
// From now on a write beyond the size that files may have fails instead of ending this process. Programs that it starts
// take that over.
void failBeyondFileSizeLimit();
// Becomes the program: its file and the words of its command line, the program's name first. Answers only when that
// cannot be.
Failure becomeProgram(const DiskPath& file, std::vector<std::string> words);

}  // namespace tarvo
