// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "console/command.h"

namespace CLI {
class App;
}

// The verbs of tarvoctl and their words.
namespace tarvo {

// What stands behind a verb.
struct VerbWords {
  std::vector<std::string> pairs, names;
  std::string direction, kind, name, version, file, folder, tool, code;
  int index = 0, position = 0;
  bool json = false;
};

using MakeCommand = std::function<std::unique_ptr<Command>()>;

// Adds the verbs to the command line. The one that is found there fills in the words and is handed to chosen, as what
// makes its command. words outlives what is chosen; passedOn answers the options that a verb hands to another
// program, asked when its command is made.
void addVerbs(CLI::App& app, VerbWords& words, const std::function<void(MakeCommand)>& chosen,
              const std::function<std::vector<std::string>()>& passedOn);

}  // namespace tarvo
