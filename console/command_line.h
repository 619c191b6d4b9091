// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "app/command_line/common_options.h"
#include "console/verbs/command.h"

// The command line of tarvoctl: its verbs and their words.
namespace tarvo {

// What stands behind a verb.
struct VerbWords {
  std::vector<std::string> pairs, names, tools;
  std::string style, direction, kind, name, version, file, folder, tool, code, id;
  int position = 0;
};

struct CommandLine : CommonOptions {
  std::string script = "-";
  VerbWords words;
  std::function<std::unique_ptr<Command>()> makeCommand;  // the verb's; empty: the script is to be run
  bool needsResources = true;  // the verb cannot work with a resource folder that lacks what all need
};

// Reads the words behind the program's name into line, which the command that is made refers to. A status: that was
// all, a line that is wrong or asks for help or the version, and it was told.
std::optional<ExitStatus> readCommandLine(CommandLine& line, const std::vector<std::string>& words, std::ostream& out,
                                          std::ostream& err);

}  // namespace tarvo
