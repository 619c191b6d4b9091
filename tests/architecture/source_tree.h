// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

// The project's C++ files and what each includes, as text: no preprocessor, so an include under #if counts too.
namespace tarvo {

struct Include {
  int line = 0;
  bool quoted = false;  // "..." rather than <...>
  std::string name;
};

// Paths from the top of the tree, with '/', to their includes.
using SourceTree = std::map<std::string, std::vector<Include>>;

std::vector<Include> includesOf(const std::string& text);
// Reads every .cpp and .h below the folders that hold code.
SourceTree readSourceTree(const std::string& top);
// Those of the program outside platform/posix whose text holds the word.
std::vector<std::string> filesThatName(const std::string& top, const std::string& word);
// Line counts of the same files.
std::map<std::string, int> readLineCounts(const std::string& top);

}  // namespace tarvo
