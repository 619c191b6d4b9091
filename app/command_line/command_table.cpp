// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/command_line/command_table.h"

#include <algorithm>
#include <charconv>
#include <sstream>

namespace tarvo {

namespace {

bool isWholeNumber(std::string_view word) {
  int number = 0;
  const char* begin = word.data();
  const char* end = begin + word.size();
  const auto read = std::from_chars(begin, end, number);
  return read.ec == std::errc{} && read.ptr == end;
}

struct Store {
  const std::vector<std::string>& words;
  void operator()(bool* to) const { *to = true; }
  void operator()(int* to) const {
    std::from_chars(words.back().data(), words.back().data() + words.back().size(), *to);
  }
  void operator()(std::vector<std::string>* to) const { *to = words; }
  void operator()(auto* to) const { *to = words.back(); }
};

}  // namespace

WordForm wholeNumber() { return {{}, isWholeNumber, "Usage.Number"}; }

std::vector<VerbArgument> argumentsOf(const CommandTable& table, const VerbRow& verb) {
  std::vector<VerbArgument> arguments;
  std::istringstream words(verb.arguments);
  for (std::string word; words >> word;) {
    const bool isRequired = word.front() != '[';
    if (!isRequired) word = word.substr(1, word.size() - 2);
    const bool isList = word.ends_with("...");
    if (isList) word.resize(word.size() - 3);
    const auto row = std::ranges::find(table.arguments, word, &ArgumentRow::name);
    if (row != table.arguments.end()) arguments.push_back({*row, isRequired, isList});
  }
  return arguments;
}

const VerbRow* verbOf(const CommandTable& table, const std::string& words) {
  const auto row = std::ranges::find(table.verbs, words, &VerbRow::words);
  return row != table.verbs.end() ? &*row : nullptr;
}

std::string synopsis(const CommandTable& table, const std::string& verb) {
  const VerbRow* row = verbOf(table, verb);
  std::string line = table.program;
  for (const std::string& part : {verb, std::string(row != nullptr ? row->arguments : "")}) {
    if (!part.empty()) line += " " + part;
  }
  return line;
}

std::optional<UsageError> wrongValue(const char* name, const WordForm& form, const std::vector<std::string>& words) {
  for (const std::string& word : words) {
    const bool fits = form.words.empty() ? form.fits == nullptr || form.fits(word)
                                         : std::ranges::find(form.words, word) != form.words.end();
    if (!fits) return UsageError{UsageError::Kind::wrongValue, word, form.words, form.key, name};
  }
  return std::nullopt;
}

void store(const std::vector<std::string>& values, const WordTarget& into) { std::visit(Store{values}, into); }

}  // namespace tarvo
