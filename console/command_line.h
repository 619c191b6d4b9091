// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "app/product.h"
#include "console/verbs/command.h"

// The command line of tarvoctl: its options, its verbs and their words.
namespace tarvo {

// What stands behind a verb.
struct VerbWords {
  std::vector<std::string> pairs, names;
  std::string direction, kind, name, version, file, folder, tool, code;
  int index = 0, position = 0;
  bool json = false;
};

struct CommandLine {
  ProductOptions product;
  std::optional<std::string> busName;
  std::string clock, script = "-";
  VerbWords words;
  std::function<std::unique_ptr<Command>()> makeCommand;  // the verb's; empty: the script is to be run
};

// Reads the words into line, which the command that is made refers to. A status: that was all, a line that is wrong or
// asks for help or the version, and it was told.
std::optional<ExitStatus> readCommandLine(CommandLine& line, int count, const char* const* words, std::ostream& out,
                                          std::ostream& err);

}  // namespace tarvo
