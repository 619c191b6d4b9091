// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

// Runs the built tarvoctl in a neutral environment: no variable of the product, one locale, a working folder of its
// own.
namespace tarvo::test {

struct ToolResult {
  int status = -1;
  std::string out, err;
};

// variables: "NAME=VALUE", of the environment besides.
ToolResult runTool(const std::vector<std::string>& arguments, const std::string& workingFolder,
                   const std::string& input = "", const std::vector<std::string>& variables = {});

// A failure as it is told: name, what, cause and cure.
inline std::string told(const std::string& name, const std::string& parts) {
  return "tarvoctl: " + name + ": " + parts + "\n";
}

}  // namespace tarvo::test
