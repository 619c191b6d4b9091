// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verb_table.h"

#include <CLI/CLI.hpp>

#include "console/addin_commands.h"
#include "console/dictionary_commands.h"
#include "console/doctor.h"
#include "console/engine_commands.h"
#include "console/new_dictionary_command.h"
#include "console/open_command.h"
#include "console/style_commands.h"
#include "console/style_travel_commands.h"

namespace tarvo {

namespace {

using Chosen = std::function<void(MakeCommand)>;

struct Table {
  VerbWords& words;
  const Chosen& chosen;

  // make answers a command by value.
  template <class Make>
  void add(CLI::App& verb, Make make) const {
    verb.fallthrough()->callback([chosen = chosen, make] {
      chosen([make]() -> std::unique_ptr<Command> { return std::make_unique<decltype(make())>(make()); });
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
    verb.add_option("NAME", words.name, "of the application, as listed")->required();
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

}  // namespace

void addVerbs(CLI::App& app, VerbWords& words, const Chosen& chosen,
              const std::function<std::vector<std::string>()>& passedOn) {
  const Table table{words, chosen};
  addStyleVerbs(app, table);
  addListVerbs(app, table);
  addNewVerb(app, table);
  addEngineVerbs(app, table);
  addAddinVerbs(app, table);
  CLI::App& open = *app.add_subcommand("open", "bring the window to a tool, by its caller code");
  open.add_option("CODE", words.code)->required();
  table.add(open, [&words, passedOn] { return OpenCommand(passedOn(), words.code); });
  CLI::App& doctor = *app.add_subcommand("doctor", "every path looked at, and what is there");
  addListing(doctor, words);
  table.add(doctor, [&words] { return DoctorCommand(words.json); });
}

}  // namespace tarvo
