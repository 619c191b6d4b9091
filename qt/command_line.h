// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/product.h"

namespace tarvo {

// The words after the program's name. Paths are taken byte by byte, whatever the locale.
struct CommandLine {
  ProductOptions product;
  std::optional<std::string> tour;  // folder for the pictures of a guided tour
  bool version = false, help = false;
  std::string problem;  // why the words cannot be understood; "" when they can
};

// "--name VALUE" or "--name=VALUE".
CommandLine readCommandLine(const std::vector<std::string>& words);
std::string usage();

}  // namespace tarvo
