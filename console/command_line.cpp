// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/command_line.h"

#include <CLI/CLI.hpp>

#include "console/verbs/addin_commands.h"
#include "console/verbs/dictionary_commands.h"
#include "console/verbs/doctor.h"
#include "console/verbs/engine_commands.h"
#include "console/verbs/new_dictionary_command.h"
#include "console/verbs/open_command.h"
#include "console/verbs/style_commands.h"
#include "console/verbs/style_travel_commands.h"

namespace tarvo {

namespace {

// The options that the window program takes as well.
std::vector<std::string> passedOn(const CommandLine& line) {
  const ProductOptions& product = line.product;
  std::vector<std::string> options;
  const auto add = [&options](const char* name, const std::optional<std::string>& value) {
    if (value) options.push_back(std::string(name) + '=' + *value);
  };
  add("--root", product.root);
  add("--home", product.home);
  add("--language", product.language);
  for (const std::string& file : product.strings) add("--strings", file);
  add("--paths", product.paths);
  add("--resources", product.resources);
  add("--engine", product.engine);
  add("--bus-name", line.busName);
  return options;
}

void addCommonOptions(CLI::App& app, CommandLine& line) {
  ProductOptions& product = line.product;
  app.add_option("--root", product.root, "prefix of the product's and the system's fixed paths");
  app.add_option("--home", product.home, "the user's home folder");
  app.add_option("--language", product.language, "text table")->check(CLI::IsMember({"en", "ja"}));
  app.add_option("--strings", product.strings, "texts laid over the table; none drops those before it")
      ->allow_extra_args(false);
  app.add_option("--paths", product.paths, "a property list laid over the product's paths");
  app.add_option("--resources", product.resources, "the resource folder");
  app.add_option("--engine", product.engine, "style service; none is never reachable");
  app.add_option("--bus-name", line.busName, "name of the manager on the session bus (under open)");
  app.add_option("--clock", line.clock, "manual: timers fire only through advance (under run)")
      ->check(CLI::IsMember({"manual", "real"}));
  app.set_version_flag("--version", "tarvoctl " TARVO_VERSION);
}

struct Table {
  CommandLine& line;
  VerbWords& words = line.words;

  // make answers a command by value.
  template <class Make>
  void add(CLI::App& verb, Make make) const {
    verb.fallthrough()->callback([&to = line.makeCommand, make] {
      to = [make]() -> std::unique_ptr<Command> { return std::make_unique<decltype(make())>(make()); };
    });
  }
  CLI::App& group(CLI::App& app, const char* name, const char* purpose) const {
    return *app.add_subcommand(name, purpose)->require_subcommand(1)->fallthrough();
  }
};

void addListing(CLI::App& verb, VerbWords& words) { verb.add_flag("--json", words.json, "one line of JSON"); }

void addIndex(CLI::App& verb, VerbWords& words) { verb.add_option("N", words.index)->required(); }

void addStyleVerbs(CLI::App& app, const Table& table) {
  VerbWords& words = table.words;
  CLI::App& styles = *app.add_subcommand("styles", "list the styles");
  addListing(styles, words);
  table.add(styles, [&] { return StylesCommand(words.json); });
  CLI::App& style = table.group(app, "style", "one style");
  CLI::App& show = *style.add_subcommand("show", "print it");
  addIndex(show, words);
  addListing(show, words);
  table.add(show, [&] { return StyleShowCommand(words.index, words.json); });
  CLI::App& set = *style.add_subcommand("set", "set options");
  addIndex(set, words);
  set.add_option("KEY=VALUE", words.pairs)->required();
  table.add(set, [&] { return StyleSetCommand(words.index, words.pairs); });
  CLI::App& rename = *style.add_subcommand("rename", "give it another name");
  addIndex(rename, words);
  rename.add_option("NAME", words.name)->required();
  table.add(rename, [&] { return StyleRenameCommand(words.index, words.name); });
  CLI::App& exported = *style.add_subcommand("export", "write it into a file of its own");
  addIndex(exported, words);
  exported.add_option("FILE", words.file)->required();
  table.add(exported, [&] { return StyleExportCommand(words.index, words.file); });
  CLI::App& imported = *style.add_subcommand("import", "put the style of a file in its place");
  addIndex(imported, words);
  imported.add_option("FILE", words.file)->required();
  table.add(imported, [&] { return StyleImportCommand(words.index, words.file); });
}

void addDirection(CLI::App& verb, VerbWords& words) {
  verb.add_option("DIRECTION", words.direction)->required()->check(CLI::IsMember({"ej", "je"}));
}

void addPlace(CLI::App& verb, VerbWords& words) {
  addIndex(verb, words);
  addDirection(verb, words);
}

void addListVerbs(CLI::App& app, const Table& table) {
  VerbWords& words = table.words;
  const auto place = [&words] { return ListPlace{words.index, words.direction == "ej" ? 0 : 1}; };
  CLI::App& list = *app.add_subcommand("dictionaries", "list the technical dictionaries of a style");
  addPlace(list, words);
  addListing(list, words);
  table.add(list, [&words, place] { return DictionariesCommand(place(), words.json); });
  CLI::App& dictionary = table.group(app, "dictionary", "edit that list");
  addPlace(dictionary, words);
  CLI::App& add = *dictionary.add_subcommand("add", "load dictionaries behind those that are loaded");
  add.add_option("NAME", words.names)->required();
  table.add(add, [&words, place] { return AddDictionariesCommand(place(), words.names); });
  CLI::App& remove = *dictionary.add_subcommand("remove", "take one out of the list");
  remove.add_option("NAME", words.name)->required();
  table.add(remove, [&words, place] { return RemoveDictionaryCommand(place(), words.name); });
  CLI::App& move = *dictionary.add_subcommand("move", "put one in another place, counted from 1");
  move.add_option("NAME", words.name)->required();
  move.add_option("POSITION", words.position)->required();
  table.add(move, [&words, place] { return MoveDictionaryCommand(place(), words.name, words.position); });
}

void addNewVerb(CLI::App& app, const Table& table) {
  VerbWords& words = table.words;
  CLI::App& verb = *app.add_subcommand("new", "make an empty user dictionary or translation memory");
  addDirection(verb, words);
  verb.add_option("KIND", words.kind)->required()->check(CLI::IsMember({"user", "memory"}));
  verb.add_option("NAME", words.name, "without extension")->required();
  table.add(verb,
            [&] { return NewDictionaryCommand(words.direction == "ej" ? 0 : 1, words.kind == "memory", words.name); });
}

void addEngineVerbs(CLI::App& app, const Table& table) {
  VerbWords& words = table.words;
  CLI::App& engine = table.group(app, "engine", "the style service");
  CLI::App& status = *engine.add_subcommand("status", "what it is, and what it holds");
  addListing(status, words);
  table.add(status, [&] { return EngineStatusCommand(words.json); });
  table.add(*engine.add_subcommand("push", "hand the styles over"), [] { return EnginePushCommand(); });
  table.add(*engine.add_subcommand("pull", "take newer styles"), [] { return EnginePullCommand(); });
}

void addAddinVerbs(CLI::App& app, const Table& table) {
  VerbWords& words = table.words;
  CLI::App& addins = *app.add_subcommand("addins", "list the applications that take an Office macro or mail scripts");
  addListing(addins, words);
  table.add(addins, [&] { return AddinsCommand(words.json); });
  CLI::App& addin = table.group(app, "addin", "one add-in");
  for (const bool install : {true, false}) {
    CLI::App& verb = *addin.add_subcommand(install ? "install" : "remove",
                                           install ? "put it into its application" : "take it out again");
    verb.add_option("NAME", words.name, "of the application, as listed, or its path")->required();
    verb.add_option("VERSION", words.version, "where several have the name");
    table.add(verb, [&words, install] { return AddinTickCommand(words.name, words.version, install); });
  }
  CLI::App& search = *addin.add_subcommand("search", "look for Office 2011 in a folder");
  search.add_option("FOLDER", words.folder)->required();
  table.add(search, [&] { return AddinSearchCommand(words.folder); });
  CLI::App& list = *app.add_subcommand("tool-list", "write the file from which the macros learn their tool");
  list.add_option("TOOL", words.tool, "code of the tool; else the one chosen before");
  table.add(list, [&] { return ToolListCommand(words.tool); });
}

void addOtherVerbs(CLI::App& app, const Table& table) {
  VerbWords& words = table.words;
  CLI::App& open = *app.add_subcommand("open", "bring the window to a tool, by its caller code");
  open.add_option("CODE", words.code)->required();
  table.add(open, [&line = table.line] { return OpenCommand(passedOn(line), line.words.code); });
  CLI::App& doctor = *app.add_subcommand("doctor", "every path looked at, and what is there");
  addListing(doctor, words);
  table.add(doctor, [&words] { return DoctorCommand(words.json); });
  CLI::App& script = *app.add_subcommand("run", "run a script of the scenario language");
  script.add_option("FILE", table.line.script, "the script; - reads it from the input");
}

}  // namespace

std::optional<ExitStatus> readCommandLine(CommandLine& line, int count, const char* const* words, std::ostream& out,
                                          std::ostream& err) {
  CLI::App app("Manages the translation styles of TarvoEiwa.", "tarvoctl");
  app.require_subcommand(1)->fallthrough();
  addCommonOptions(app, line);
  const Table table{line};
  addStyleVerbs(app, table);
  addListVerbs(app, table);
  addNewVerb(app, table);
  addEngineVerbs(app, table);
  addAddinVerbs(app, table);
  addOtherVerbs(app, table);
  try {
    app.parse(count, words);
  } catch (const CLI::ParseError& error) {
    return app.exit(error, out, err) == 0 ? ExitStatus::done : ExitStatus::usage;
  }
  return std::nullopt;
}

}  // namespace tarvo
