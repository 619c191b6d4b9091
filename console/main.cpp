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
#include "console/manual_run_loop.h"
#include "console/run_script.h"
#include "console/verb_table.h"
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
  VerbWords words;
  std::string clock, script = "-";
  std::optional<std::string> busName;
};

// The options that the window program takes as well.
std::vector<std::string> passedOn(const Arguments& arguments) {
  const ProductOptions& product = arguments.product;
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
  add("--bus-name", arguments.busName);
  return options;
}

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
  app.add_option("--bus-name", arguments.busName, "name of the manager on the session bus (under open)");
  app.add_option("--clock", arguments.clock, "manual: timers fire only through advance (under run)")
      ->check(CLI::IsMember({"manual", "real"}));
  app.set_version_flag("--version", "tarvoctl " TARVO_VERSION);
}

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

void addRunVerb(CLI::App& app, Arguments& arguments, std::function<ExitStatus()>& run) {
  CLI::App* script = app.add_subcommand("run", "run a script of the scenario language");
  script->add_option("FILE", arguments.script, "the script; - reads it from the input");
  script->callback([&] { run = [&] { return runScriptFile(arguments); }; });
}

ExitStatus main(int count, char** words) {
  CLI::App app("Manages the translation styles of TarvoEiwa.", "tarvoctl");
  app.require_subcommand(1)->fallthrough();
  Arguments arguments;
  std::function<ExitStatus()> run;
  addCommonOptions(app, arguments);
  const auto chosen = [&](MakeCommand make) {
    run = [&arguments, make = std::move(make)] { return runVerb(arguments, *make()); };
  };
  addVerbs(app, arguments.words, chosen, [&arguments] { return passedOn(arguments); });
  addRunVerb(app, arguments, run);
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
