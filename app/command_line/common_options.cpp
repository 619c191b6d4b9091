// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/command_line/common_options.h"

namespace tarvo {

namespace {

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

std::vector<OptionRow> sharedRows(CommonOptions& into) {
  ProductOptions& product = into.product;
  return {
      {"--root", "DIR", "Option.Root", "$TARVO_ROOT", &product.root},
      {"--home", "DIR", "Option.Home", "$TARVO_HOME", &product.home},
      {"--language", "en|ja", "Option.Language", "$LANG", &product.language, {{"en", "ja"}}},
      {"--strings", "FILE", "Option.Strings", "", &product.strings},
      {"--paths", "FILE", "Option.Paths", "", &product.paths},
      {"--resources", "DIR", "Option.Resources", "", &product.resources},
      {"--engine", "URL", "Option.Engine", "", &product.engine},
      {"--bus-name", "NAME", "Option.BusName", defaultBusName, &into.busName, {{}, isBusName, "Usage.BusName"}},
  };
}

struct Given {
  std::vector<std::string> operator()(const std::vector<std::string>* values) const { return *values; }
  std::vector<std::string> operator()(const std::optional<std::string>* value) const {
    return *value ? std::vector{**value} : std::vector<std::string>();
  }
  std::vector<std::string> operator()(const auto* /*other*/) const { return {}; }
};

}  // namespace

std::vector<OptionRow> commonOptions(CommonOptions& into, Front front) {
  std::vector<OptionRow> rows = sharedRows(into);
  if (front == Front::console) {
    rows.push_back({"--clock", "manual|real", "Option.Clock", "", &into.clock, {{"manual", "real"}}});
    rows.push_back({"--json", "", "Option.Json", "", &into.json});
    rows.push_back({"--reseed", "", "Option.Reseed", "", &into.reseed});
  }
  rows.push_back({"--version", "", "Option.Version", "", &into.version, {}, true});
  rows.push_back({"-h,--help", "", "Option.Help", "", &into.help, {}, true});
  return rows;
}

std::vector<std::string> wordsForWindow(const CommonOptions& options) {
  CommonOptions given = options;
  std::vector<std::string> words;
  for (const OptionRow& row : sharedRows(given)) {
    for (const std::string& value : std::visit(Given{}, row.into))
      words.push_back(std::string(row.names) + '=' + value);
  }
  return words;
}

Texts textsToTell(const CommonOptions& options) {
  ProductOptions shipped;
  shipped.language = options.product.language;
  return Product(shipped).texts();
}

}  // namespace tarvo
