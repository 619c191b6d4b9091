// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/command_line.h"

#include <algorithm>
#include <functional>

namespace tarvo {
namespace {

struct Option {
  std::string_view name;
  std::function<void(CommandLine&, const std::string&)> take;
};

const std::vector<Option>& valueOptions() {
  using Value = const std::string&;
  static const std::vector<Option> options{
      {"--root", [](CommandLine& line, Value value) { line.product.root = value; }},
      {"--home", [](CommandLine& line, Value value) { line.product.home = value; }},
      {"--language", [](CommandLine& line, Value value) { line.product.language = value; }},
      {"--strings", [](CommandLine& line, Value value) { line.product.strings.push_back(value); }},
      {"--paths", [](CommandLine& line, Value value) { line.product.paths = value; }},
      {"--resources", [](CommandLine& line, Value value) { line.product.resources = value; }},
      {"--engine", [](CommandLine& line, Value value) { line.product.engine = value; }},
      {"--tour", [](CommandLine& line, Value value) { line.tour = value; }},
  };
  return options;
}

}  // namespace

CommandLine readCommandLine(const std::vector<std::string>& words) {
  CommandLine line;
  for (std::size_t i = 0; i < words.size() && line.problem.empty(); ++i) {
    const std::size_t equals = words[i].find('=');
    const std::string name = words[i].substr(0, equals);
    const auto& options = valueOptions();
    const auto option = std::find_if(options.begin(), options.end(), [&](const Option& o) { return o.name == name; });
    if (words[i] == "--version") {
      line.version = true;
    } else if (words[i] == "--help" || words[i] == "-h") {
      line.help = true;
    } else if (option == options.end()) {
      line.problem = "unknown option " + words[i];
    } else if (equals != std::string::npos) {
      option->take(line, words[i].substr(equals + 1));
    } else if (i + 1 == words.size()) {
      line.problem = name + " needs a value";
    } else {
      option->take(line, words[++i]);
    }
  }
  const auto& language = line.product.language;
  if (line.problem.empty() && language && *language != "en" && *language != "ja") {
    line.problem = "--language is en or ja";
  }
  return line;
}

std::string usage() {
  return "tarvo-manager [--root DIR] [--home DIR] [--language en|ja] [--strings FILE]... [--paths FILE]\n"
         "              [--resources DIR] [--engine URL|none] [--tour DIR] [--version] [--help]\n";
}

}  // namespace tarvo
