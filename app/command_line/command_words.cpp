// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/command_line/command_words.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>

#include "platform/services/texts.h"

namespace tarvo {

namespace {

using Kind = UsageError::Kind;

constexpr int endless = CLI::detail::expected_max_vector_size;

// The parser with a table's words in it. texts: for the help; null to read only.
class Parser {
 public:
  Parser(const CommandTable& table, const Texts* texts)
      : table_(table), texts_(texts), app_(text(table.meaning), table.program) {
    app_.set_help_flag();
    app_.require_subcommand(0, 1)->allow_extras()->fallthrough();
    if (texts != nullptr) labelHelp(*app_.get_formatter());
    for (const OptionRow& row : table.options) options_.push_back(add(row));
    for (const VerbRow& row : table.verbs) add(row);
  }

  WordsRead read(const std::vector<std::string>& words) {
    std::vector<std::string> reversed;
    if (auto error = split(words, reversed)) return {std::move(error), ""};
    std::ranges::reverse(reversed);
    try {
      app_.parse(reversed);
    } catch (const CLI::ParseError&) {  // all else is told below: only a last option can lack its value
      return {UsageError{Kind::missingValue, words.back(), {}, "", ""}, ""};
    }
    WordsRead result{storeOptions(), verb()};
    if (!suffices_ && !result.error) result.error = readVerb(result.verb);
    return result;
  }

  std::string help(const std::string& verb) {
    std::string before;
    const CLI::App* app = &app_;
    std::istringstream words(verb);
    for (std::string word; words >> word; app = app->get_subcommand(word)) {
      before += (before.empty() ? "" : " ") + app->get_name();
    }
    return app->help(before);
  }

 private:
  std::string text(std::string_view key) const { return texts_ != nullptr ? texts_->localized(key) : ""; }

  void labelHelp(CLI::FormatterBase& help) const {
    help.label("Usage", text("Usage.Usage"));
    help.label("Positionals", text("Usage.Arguments"));
    help.label("SUBCOMMAND", "COMMAND");
    help.label("REQUIRED", "");
  }

  CLI::Option* add(const OptionRow& row) {
    const bool isFlag = *row.value == '\0';
    CLI::Option* option = isFlag ? app_.add_flag(row.names) : app_.add_option(row.names);
    if (!isFlag) option->type_name(row.value)->default_str(row.byDefault);
    if (texts_ != nullptr) option->description(text(row.meaning))->group(text("Usage.Options"));
    return option->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  }

  void add(const VerbRow& verb) {
    std::istringstream words(verb.words);
    CLI::App* app = &app_;
    for (std::string word; words >> word;) {
      const auto below = app->get_subcommands([&](CLI::App* other) { return other->get_name() == word; });
      app = below.empty() ? app->add_subcommand(word, text(verb.meaning)) : below.front();
    }
    if (texts_ != nullptr && app != &app_) app->group(text("Usage.Commands"));
    for (const VerbArgument& argument : argumentsOf(table_, verb)) {
      CLI::Option* option = app->add_option(argument.row.name)->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
      // A minimum that is never reached takes every word as it is; an open end would take "[a,b]" apart.
      if (argument.isList) option->expected(endless - 1, endless);
      option->required(texts_ != nullptr && argument.isRequired);
      option->description(text(argument.row.meaning));
    }
  }

  // "--name=VALUE" as two words, so that an empty value is one, too.
  std::optional<UsageError> split(const std::vector<std::string>& words, std::vector<std::string>& into) const {
    const auto end = std::ranges::find(words, "--");
    for (auto word = words.begin(); word != end; ++word) {
      const std::size_t equals = word->starts_with("--") ? word->find('=') : std::string::npos;
      const CLI::Option* option =
          equals != std::string::npos ? app_.get_option_no_throw(word->substr(0, equals)) : nullptr;
      if (option == nullptr) {
        into.push_back(*word);
      } else if (option->get_items_expected_max() == 0) {
        return unknownOption(*word);
      } else {
        into.push_back(word->substr(0, equals));
        into.push_back(word->substr(equals + 1));
      }
    }
    into.insert(into.end(), end, words.end());
    return std::nullopt;
  }

  UsageError unknownOption(const std::string& word) const {
    std::vector<std::string> names;
    for (const OptionRow& row : table_.options) {
      const std::string_view all = row.names;
      names.emplace_back(all.substr(all.find("--")));
    }
    return {Kind::unknownOption, word, names, "", ""};
  }

  std::string verb() const {
    std::string words;
    const CLI::App* app = &app_;
    while (!app->get_subcommands().empty()) {
      app = app->get_subcommands().front();
      words += (words.empty() ? "" : " ") + app->get_name();
    }
    return words;
  }

  std::optional<UsageError> storeOptions() {
    std::optional<UsageError> error;
    for (std::size_t i = 0; i < options_.size(); ++i) {
      const OptionRow& row = table_.options[i];
      if (options_[i]->count() == 0) continue;
      suffices_ = suffices_ || row.suffices;
      const bool isFlag = *row.value == '\0';
      std::optional<UsageError> wrong = isFlag ? std::nullopt : wrongValue(row.names, row.form, options_[i]->results());
      if (!wrong) store(options_[i]->results(), row.into);
      if (!error) error = std::move(wrong);
    }
    return error;
  }

  std::optional<UsageError> unplaced(const std::string& verb, const std::vector<std::string>& verbs) const {
    for (const std::string& word : app_.remaining(true)) {
      if (word == "--") continue;
      if (word.size() > 1 && word.front() == '-') return unknownOption(word);
      if (!verbs.empty()) return UsageError{Kind::unknownVerb, word, verbs, "", ""};
      return UsageError{Kind::unexpected, word, {}, synopsis(table_, verb), ""};
    }
    return std::nullopt;
  }

  std::optional<UsageError> storeArguments(const CLI::App& app, const VerbRow& verb) {
    for (const auto& [row, isRequired, isList] : argumentsOf(table_, verb)) {
      const std::vector<std::string>& words = app.get_option(row.name)->results();
      if (words.empty() && isRequired) {
        const std::string whole = row.form.words.empty() ? synopsis(table_, verb.words) : "";
        return UsageError{Kind::missing, row.name, row.form.words, whole, ""};
      }
      if (words.empty()) continue;
      if (auto error = wrongValue(row.name, row.form, words)) return error;
      store(words, row.into);
    }
    return std::nullopt;
  }

  std::optional<UsageError> readVerb(const std::string& verb) {
    const CLI::App* app = &app_;
    while (!app->get_subcommands().empty()) app = app->get_subcommands().front();
    std::vector<std::string> verbs;
    for (const CLI::App* below : app->get_subcommands({})) verbs.push_back(below->get_name());
    if (auto error = unplaced(verb, verbs)) return error;
    if (!verbs.empty()) return UsageError{Kind::missing, verb + (verb.empty() ? "" : " ") + "COMMAND", verbs, "", ""};
    const VerbRow* row = verbOf(table_, verb);
    return row != nullptr ? storeArguments(*app, *row) : std::nullopt;
  }

  const CommandTable& table_;
  const Texts* texts_;
  CLI::App app_;
  std::vector<CLI::Option*> options_;
  bool suffices_ = false;
};

}  // namespace

WordsRead readWords(const CommandTable& table, const std::vector<std::string>& words) {
  return Parser(table, nullptr).read(words);
}

std::string helpText(const CommandTable& table, const std::string& verb, const Texts& texts) {
  return Parser(table, &texts).help(verb);
}

}  // namespace tarvo
