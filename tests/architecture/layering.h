// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/architecture/source_tree.h"

// The rules of docs/architecture.md about who may include whom. Each answers the faults of a tree, one a line, as
// "FILE:LINE: ..."; an empty list is the good case.
namespace tarvo {

// Arrows that run up or sideways, and names that are no path from the top of the tree.
std::vector<std::string> faultyArrows(const SourceTree& tree);
// Files that include each other in a ring; each ring once.
std::vector<std::string> includeLoops(const SourceTree& tree);
// Headers of the core that include anything but the C++ standard library and the core.
std::vector<std::string> foreignHeaders(const SourceTree& tree);
// Files outside platform/posix that include headers of the system.
std::vector<std::string> spreadSystem(const SourceTree& tree);
// Libraries that more than one source file of the core or the console includes, and toolkit headers outside qt/.
std::vector<std::string> spreadLibraries(const SourceTree& tree);

}  // namespace tarvo
