// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/command_line.h"

#include "app/product_defaults.h"

namespace tarvo {
namespace {

CommandTable tableFor(CommandLine& line) {
  CommandTable table{"tarvo-manager",
                     "AboutText",
                     commonOptions(line, Front::window),
                     {{"FILE", &line.files, {}, "Argument.FILE"}},
                     {{"", "", "[FILE...]"}}};
  table.options.push_back({"--open", "CODE", "Option.Open", "", &line.open});
  table.options.push_back({"--tour", "DIR", "Option.Tour", "", &line.tour});
  return table;
}

}  // namespace

CommandLine readCommandLine(const std::vector<std::string>& words) {
  CommandLine line;
  line.error = readWords(tableFor(line), words).error;
  for (std::string& file : line.files) file = absolutePath(file).text();
  return line;
}

std::string helpOfCommandLine(const Texts& texts) {
  CommandLine line;
  return helpText(tableFor(line), "", texts);
}

}  // namespace tarvo
