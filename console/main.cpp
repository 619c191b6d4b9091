// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <optional>

#include "app/product.h"
#include "console/addin_commands.h"
#include "console/dictionary_commands.h"
#include "console/doctor.h"
#include "console/manual_run_loop.h"
#include "console/new_dictionary_command.h"
#include "console/run_script.h"
#include "console/style_commands.h"
#include "platform/posix/instance_lock.h"
#include "platform/posix/posix_run_loop.h"

// The command line of tarvoctl.
namespace tarvo {

namespace {

// The real clock under a script.
class RealClock : public ScenarioClock {
 public:
  void post(std::function<void()> call) override { loop_.post(std::move(call)); }
  Timer after(double seconds, std::function<void()> call) override { return loop_.after(seconds, std::move(call)); }
  void cancel(Timer timer) override { loop_.cancel(timer); }
  void settle() override { advance(0); }
  void advance(double seconds) override {
    loop_.after(seconds, [this] { loop_.stop(); });
    loop_.run();
  }

 private:
  PosixRunLoop loop_;
};

struct Arguments {
  ProductOptions product;
  std::string clock, script = "-";
  std::vector<std::string> pairs;
  std::vector<std::string> names;
  std::string direction, kind, name, version, folder, tool;
  int index = 0, position = 0;
  bool json = false;
};

void addCommonOptions(CLI::App& app, Arguments& arguments) {
  ProductOptions& product = arguments.product;
  app.add_option("--root", product.root, "prefix of the product's and the system's fixed paths");
  app.add_option("--home", product.home, "the user's home folder");
  app.add_option("--language", product.language, "text table")->check(CLI::IsMember({"en", "ja"}));
  app.add_option("--strings", product.strings, "texts laid over the table; none drops those before it")
      ->allow_extra_args(false);
  app.add_option("--paths", product.paths, "a property list laid over the product's paths");
  app.add_option("--resources", product.resources, "the resource folder");
  app.add_option("--engine", product.engine, "style service; none is never reachable");
  app.add_option("--clock", arguments.clock, "manual: timers fire only through advance (under run)")
      ->check(CLI::IsMember({"manual", "real"}));
  app.set_version_flag("--version", "tarvoctl " TARVO_VERSION);
}

using Run = std::function<ExitStatus()>;

// Takes a lock and keeps it as long as it lives itself.
class HeldLock {
 public:
  bool operator()(const std::string& path) {
    lock_.emplace(path);
    return lock_->state() != InstanceLock::State::heldByAnother;
  }

 private:
  std::optional<InstanceLock> lock_;
};

ExitStatus runVerb(const Arguments& arguments, Command& command) {
  Product product(arguments.product);
  if (!product.problem().empty()) {
    std::cerr << product.problem() << '\n';
    return ExitStatus::usage;
  }
  PosixRunLoop loop;
  HeldLock lock;
  Console console{product, loop, std::cout, std::cerr, std::ref(lock)};
  console.engineIsWanted = arguments.product.engine != "none";
  return command.run(console);
}

ExitStatus runScriptFile(const Arguments& arguments) {
  const bool fromInput = arguments.script == "-";
  std::ifstream file;
  if (!fromInput) {
    file.open(arguments.script);
    if (!file || std::filesystem::is_directory(arguments.script)) {
      std::cerr << "cannot read " << arguments.script << '\n';
      return ExitStatus::usage;
    }
  }
  std::istream& input = fromInput ? std::cin : file;
  std::string text{std::istreambuf_iterator<char>(input), std::istreambuf_iterator<char>()};
  const std::filesystem::path folder =
      fromInput ? std::filesystem::current_path() : std::filesystem::absolute(arguments.script).parent_path();
  const std::unique_ptr<ScenarioClock> clock = arguments.clock == "real"
                                                   ? std::unique_ptr<ScenarioClock>(std::make_unique<RealClock>())
                                                   : std::make_unique<ManualRunLoop>();
  HeldLock lock;
  return runScript({arguments.product, folder.lexically_normal().string(), std::ref(lock)}, *clock, arguments.script,
                   std::move(text), std::cout, std::cerr);
}

void addListing(CLI::App& verb, Arguments& arguments) { verb.add_flag("--json", arguments.json, "one line of JSON"); }

// make answers the verb's command when it runs.
template <class Make>
void addCommand(CLI::App& verb, Arguments& arguments, Run& run, Make make) {
  verb.fallthrough()->callback([&arguments, &run, make] {
    run = [&arguments, make] {
      auto command = make();
      return runVerb(arguments, command);
    };
  });
}

void addStyleVerbs(CLI::App& app, Arguments& arguments, Run& run) {
  CLI::App* styles = app.add_subcommand("styles", "list the styles");
  addListing(*styles, arguments);
  addCommand(*styles, arguments, run, [&] { return StylesCommand(arguments.json); });
  CLI::App* style = app.add_subcommand("style", "one style")->require_subcommand(1)->fallthrough();
  CLI::App* show = style->add_subcommand("show", "print it");
  show->add_option("N", arguments.index)->required();
  addListing(*show, arguments);
  addCommand(*show, arguments, run, [&] { return StyleShowCommand(arguments.index, arguments.json); });
  CLI::App* set = style->add_subcommand("set", "set options");
  set->add_option("N", arguments.index)->required();
  set->add_option("KEY=VALUE", arguments.pairs)->required();
  addCommand(*set, arguments, run, [&] { return StyleSetCommand(arguments.index, arguments.pairs); });
}

ListPlace placeIn(const Arguments& arguments) { return {arguments.index, arguments.direction == "ej" ? 0 : 1}; }

void addPlace(CLI::App& verb, Arguments& arguments) {
  verb.add_option("N", arguments.index)->required();
  verb.add_option("DIRECTION", arguments.direction)->required()->check(CLI::IsMember({"ej", "je"}));
}

void addListVerbs(CLI::App& app, Arguments& arguments, Run& run) {
  CLI::App* list = app.add_subcommand("dictionaries", "list the technical dictionaries of a style");
  addPlace(*list, arguments);
  addListing(*list, arguments);
  addCommand(*list, arguments, run, [&] { return DictionariesCommand(placeIn(arguments), arguments.json); });
  CLI::App* dictionary = app.add_subcommand("dictionary", "edit that list")->require_subcommand(1)->fallthrough();
  addPlace(*dictionary, arguments);
  CLI::App* add = dictionary->add_subcommand("add", "load dictionaries behind those that are loaded");
  add->add_option("NAME", arguments.names)->required();
  addCommand(*add, arguments, run, [&] { return AddDictionariesCommand(placeIn(arguments), arguments.names); });
  CLI::App* remove = dictionary->add_subcommand("remove", "take one out of the list");
  remove->add_option("NAME", arguments.name)->required();
  addCommand(*remove, arguments, run, [&] { return RemoveDictionaryCommand(placeIn(arguments), arguments.name); });
  CLI::App* move = dictionary->add_subcommand("move", "put one in another place, counted from 1");
  move->add_option("NAME", arguments.name)->required();
  move->add_option("POSITION", arguments.position)->required();
  addCommand(*move, arguments, run,
             [&] { return MoveDictionaryCommand(placeIn(arguments), arguments.name, arguments.position); });
}

void addNewVerb(CLI::App& app, Arguments& arguments, Run& run) {
  CLI::App* verb = app.add_subcommand("new", "make an empty user dictionary or translation memory");
  verb->add_option("DIRECTION", arguments.direction)->required()->check(CLI::IsMember({"ej", "je"}));
  verb->add_option("KIND", arguments.kind)->required()->check(CLI::IsMember({"user", "memory"}));
  verb->add_option("NAME", arguments.name, "without extension")->required();
  addCommand(*verb, arguments, run, [&] {
    return NewDictionaryCommand(placeIn(arguments).direction, arguments.kind == "memory", arguments.name);
  });
}

void addAddinVerbs(CLI::App& app, Arguments& arguments, Run& run) {
  CLI::App* addins = app.add_subcommand("addins", "list the applications that take an Office macro or mail scripts");
  addListing(*addins, arguments);
  addCommand(*addins, arguments, run, [&] { return AddinsCommand(arguments.json); });
  CLI::App* addin = app.add_subcommand("addin", "one add-in")->require_subcommand(1)->fallthrough();
  for (const bool install : {true, false}) {
    CLI::App* verb = addin->add_subcommand(install ? "install" : "remove",
                                           install ? "put it into its application" : "take it out again");
    verb->add_option("NAME", arguments.name, "of the application, as listed")->required();
    verb->add_option("VERSION", arguments.version, "where several have the name");
    addCommand(*verb, arguments, run,
               [&arguments, install] { return AddinTickCommand(arguments.name, arguments.version, install); });
  }
  CLI::App* search = addin->add_subcommand("search", "look for Office 2011 in a folder");
  search->add_option("FOLDER", arguments.folder)->required();
  addCommand(*search, arguments, run, [&] { return AddinSearchCommand(arguments.folder); });
  CLI::App* list = app.add_subcommand("tool-list", "write the file from which the macros learn their tool");
  list->add_option("TOOL", arguments.tool, "code of the tool; else the one chosen before");
  addCommand(*list, arguments, run, [&] { return ToolListCommand(arguments.tool); });
}

void addOtherVerbs(CLI::App& app, Arguments& arguments, Run& run) {
  CLI::App* doctor = app.add_subcommand("doctor", "every path looked at, and what is there");
  addListing(*doctor, arguments);
  addCommand(*doctor, arguments, run, [&] { return DoctorCommand(arguments.json); });
  CLI::App* script = app.add_subcommand("run", "run a script of the scenario language");
  script->add_option("FILE", arguments.script, "the script; - reads it from the input");
  script->callback([&] { run = [&] { return runScriptFile(arguments); }; });
}

ExitStatus main(int count, char** words) {
  CLI::App app("Manages the translation styles of TarvoEiwa.", "tarvoctl");
  app.require_subcommand(1)->fallthrough();
  Arguments arguments;
  Run run;
  addCommonOptions(app, arguments);
  addStyleVerbs(app, arguments, run);
  addListVerbs(app, arguments, run);
  addNewVerb(app, arguments, run);
  addAddinVerbs(app, arguments, run);
  addOtherVerbs(app, arguments, run);
  try {
    app.parse(count, words);
  } catch (const CLI::ParseError& error) {
    return app.exit(error, std::cout, std::cerr) == 0 ? ExitStatus::done : ExitStatus::usage;
  }
  return run();
}

}  // namespace

}  // namespace tarvo

int main(int count, char** words) { return static_cast<int>(tarvo::main(count, words)); }
