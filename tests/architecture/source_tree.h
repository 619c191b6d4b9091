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
// Where a function begins, with its first line or the first of its parameters, and how many lines it takes.
struct FunctionLength {
  int line = 0;
  int lines = 0;
};

// The functions of a text in the project's form: what opens with a brace at the end of a line that belongs to nothing
// or to a class, and closes with a brace at the same column. Functions on one line are left out.
std::vector<FunctionLength> functionsOf(const std::string& text);
std::map<std::string, std::vector<FunctionLength>> readFunctions(const std::string& top);
// Line counts of the same files.
std::map<std::string, int> readLineCounts(const std::string& top);

}  // namespace tarvo
