// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/command_line/common_options.h"

namespace tarvo {

// The words after the program's name.
struct CommandLine : CommonOptions {
  std::optional<std::string> open;  // a caller's code, for the manager that runs or the one that starts now
  std::vector<std::string> files;   // style files to open likewise, absolute
  std::optional<std::string> tour;  // folder for the pictures of a guided tour
  std::optional<UsageError> error;  // why the words cannot be understood
};

CommandLine readCommandLine(const std::vector<std::string>& words);
std::string helpOfCommandLine(const Texts& texts);

}  // namespace tarvo
