// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/command_line.h"

#include <algorithm>
#include <functional>
#include <string_view>

#include "app/product_defaults.h"

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
      {"--bus-name", [](CommandLine& line, Value value) { line.busName = value; }},
      {"--open", [](CommandLine& line, Value value) { line.open = value; }},
      {"--tour", [](CommandLine& line, Value value) { line.tour = value; }},
  };
  return options;
}

// "none", or at least two elements of letters, digits, "_" and "-" with dots between, none of which begins with a
// digit.
bool isBusName(std::string_view name) {
  if (name == "none") return true;
  bool isFirst = true;
  int elements = 0;
  for (const char c : name) {
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '-';
    const bool isDigit = c >= '0' && c <= '9';
    if (isFirst ? !isLetter : !isLetter && !isDigit && c != '.') return false;
    elements += isFirst ? 1 : 0;
    isFirst = c == '.';
  }
  return elements > 1 && !isFirst && name.size() <= 255;
}

std::string problemOf(const CommandLine& line) {
  const auto& language = line.product.language;
  if (language && *language != "en" && *language != "ja") return "--language is en or ja";
  if (!isBusName(line.busName)) return "--bus-name is none or a name with dots, such as " + std::string(defaultBusName);
  return {};
}

// Reads the option at i, and moves i to its value where that is a word of its own.
void readOption(CommandLine& line, const std::vector<std::string>& words, std::size_t& i) {
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

}  // namespace

CommandLine readCommandLine(const std::vector<std::string>& words) {
  CommandLine line;
  bool onlyFiles = false;
  for (std::size_t i = 0; i < words.size() && line.problem.empty(); ++i) {
    const std::string& word = words[i];
    if (!onlyFiles && word == "--") {
      onlyFiles = true;
    } else if (onlyFiles || word.empty() || word.front() != '-') {
      line.files.push_back(absolutePath(word));
    } else {
      readOption(line, words, i);
    }
  }
  if (line.problem.empty()) line.problem = problemOf(line);
  return line;
}

std::string usage() {
  return "tarvo-manager [--root DIR] [--home DIR] [--language en|ja] [--strings FILE]... [--paths FILE]\n"
         "              [--resources DIR] [--engine URL|none] [--bus-name NAME|none] [--open CODE]\n"
         "              [--tour DIR] [--version] [--help] [STYLE FILE]...\n";
}

}  // namespace tarvo
