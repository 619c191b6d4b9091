// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/console/run_tool.h"
#include "tests/support/scenario_files.h"

namespace tarvo::test {

// The styles of most scenarios, and a start.
inline constexpr const char* prepare =
    "file copy fixtures/root4.plist home:/Library/Preferences/Wordhaven/TarvoStyle2009.plist\n"
    "start\n";

// Runs a script from the input, on a disk of its own.
inline ToolResult runText(const std::string& text, std::vector<std::string> options = {}) {
  const ScenarioRoot root("plain");
  std::vector<std::string> arguments{"--root",     root.root(), "--home",    root.home(),
                                     "--language", "en",        "--strings", "none"};
  arguments.insert(arguments.end(), options.begin(), options.end());
  arguments.insert(arguments.end(), {"run", "-"});
  return runTool(arguments, scenarioFolder(), text);
}

}  // namespace tarvo::test
