// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "app/command_line/usage_error.h"

// What a program takes on its command line, as tables: options, verbs and the arguments of verbs.
// Duty: say it, check one value, put it where its row says. Not: telling options from other words (command_words.h),
// nor what they mean.
namespace tarvo {

// Where the words of a row go; owned by the caller. A flag sets the bool; of an option given again the last value
// counts, but a list takes them all.
using WordTarget = std::variant<bool*, int*, std::string*, std::optional<std::string>*, std::vector<std::string>*>;

// Which words a row takes: one of these words, else those that fit, else any.
struct WordForm {
  std::vector<std::string> words;
  bool (*fits)(std::string_view word) = nullptr;
  const char* key = "";  // of the text that says which fit
};
// Decimal digits, a minus sign allowed before them, in the range of int: what a target of int needs.
WordForm wholeNumber();

// "--name VALUE" or "--name=VALUE", or a flag; before or behind a verb.
struct OptionRow {
  const char* names;      // "--json", "-h,--help"
  const char* value;      // what the help calls it; "" for a flag
  const char* meaning;    // key of a text
  const char* byDefault;  // as the help shows it
  WordTarget into;
  WordForm form = {};
  bool suffices = false;  // nothing else is asked for: help, version
};

// What stands behind a verb, by the name that the verbs use for it.
struct ArgumentRow {
  const char* name;
  WordTarget into;
  WordForm form = {};
  const char* meaning = "";  // key of a text for the help
};

struct VerbRow {
  const char* words;           // "styles"; "style show", which stands behind the row "style" of its group
  std::string meaning;         // key of a text
  const char* arguments = "";  // names of arguments: "N NAME... [VERSION]"; in brackets what may be left out, with dots
                               // what may come again, which goes into a list
};

struct CommandTable {
  const char* program;
  const char* meaning;  // key of a text
  std::vector<OptionRow> options;
  std::vector<ArgumentRow> arguments;
  std::vector<VerbRow> verbs;  // one without words: what a program without verbs takes
};

// One argument of a verb, as the verb's row spells it.
struct VerbArgument {
  const ArgumentRow& row;
  bool isRequired, isList;
};
std::vector<VerbArgument> argumentsOf(const CommandTable& table, const VerbRow& verb);

const VerbRow* verbOf(const CommandTable& table, const std::string& words);  // null: there is none
// How a verb is written: program, verb, its arguments.
std::string synopsis(const CommandTable& table, const std::string& verb);

// The first of the values that its row does not take. name: of the row.
std::optional<UsageError> wrongValue(const char* name, const WordForm& form, const std::vector<std::string>& values);
void store(const std::vector<std::string>& values, const WordTarget& into);  // values of the right form, one or more

}  // namespace tarvo
