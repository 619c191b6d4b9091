// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/product.h"

namespace tarvo {

inline constexpr const char* defaultBusName = "com.wordhaven.TarvoManager";

// The words after the program's name. Paths are taken byte by byte, whatever the locale.
struct CommandLine {
  ProductOptions product;
  std::string busName = defaultBusName;  // on the session bus; "none" to stay off it
  std::optional<std::string> open;       // a caller's code, for the manager that runs or the one that starts now
  std::vector<std::string> files;        // style files to open likewise, absolute
  std::optional<std::string> tour;       // folder for the pictures of a guided tour
  bool version = false, help = false;
  std::string problem;  // why the words cannot be understood; "" when they can
};

// "--name VALUE" or "--name=VALUE"; other words are files, and so is every word after "--".
CommandLine readCommandLine(const std::vector<std::string>& words);
std::string usage();

}  // namespace tarvo
