// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <functional>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "app/product.h"
#include "app/program.h"
#include "console/verbs/style_edit_commands.h"
#include "platform/plist/plist_reader.h"
#include "platform/posix/posix_run_loop.h"
#include "platform/services/engine.h"
#include "tests/bench/bare_replace.h"
#include "tests/bench/changed_files.h"
#include "tests/bench/quiet_shell.h"
#include "tests/bench/timing.h"

// One edit against bare replaces of the same files with the same bytes, read before where the edit reads them.
//
// edit_bench KIND ROOT HOME ENGINE FLOOR COUNT
//
// KIND is "gesture", an option chosen in a program that runs, or "verb", all that "style set" does on the first style
// but for the start of its process, or "keeping", the gesture in HOME beside the same gesture in the home FLOOR, where
// something stands in the way of keeping what is replaced. ENGINE is "local", "none" or the address of a style service,
// FLOOR a folder on the same disk. What goes to a service arrives between the edits. Prints the medians in milliseconds
// and the number of files that one edit replaces: "EDIT FLOOR FILES".
namespace {

using namespace tarvo;

ProductOptions optionsFor(const std::string& root, const std::string& home, const std::string& engine) {
  ProductOptions options;
  options.root = root;
  options.home = home;
  options.language = "en";
  if (engine != "local") options.engine = engine;
  return options;
}

// The files of an edit, to be replaced below another folder.
struct Replacement {
  std::string path, bytes;
};

std::vector<Replacement> replacementsFor(const std::vector<std::string>& files, const std::string& floor) {
  std::vector<Replacement> replacements;
  for (const auto& file : files) {
    if (file.ends_with("Tarvo Shared Styles")) continue;  // written by the thread of the service
    const Replacement& made = replacements.emplace_back(Replacement{floor + file, readWholeFile(file)});
    std::filesystem::create_directories(std::filesystem::path(made.path).parent_path());
    if (!std::filesystem::exists(made.path)) bareReplace(made.path, made.bytes);
  }
  return replacements;
}

// What makes an edit. Each call changes the option to another value than the one before.
using Edit = std::function<void()>;

class Gesture {
 public:
  Gesture(Product& product, Engine& engine)
      : program_(product.services(product.files(), engine, loop_, panels_, windows_, workspace_)) {
    if (!program_.construct() || !program_.load()) {
      throw std::runtime_error("the program did not start: " + product.problem());
    }
    program_.interface().style.stylePopup.userChoose(1);
  }

  void operator()() {
    PopUpButton& option = program_.interface().options.indexPopups.front();
    option.userChoose(option.indexOfSelectedItem() == 0 ? 1 : 0);
  }

 private:
  PosixRunLoop loop_;
  QuietPanels panels_;
  QuietWindows windows_;
  QuietWorkspace workspace_;
  Program program_;
};

class Verb {
 public:
  explicit Verb(Product& product) : product_(product) { set(value_); }

  void operator()() {
    value_ = 1 - value_;
    set(value_);
  }

 private:
  void set(int value) {
    std::ostringstream out, err;
    Console console{.product = product_,
                    .out = out,
                    .err = err,
                    .takeLock = [](const UserPlace&) { return Result<>(); },
                    .become = {},
                    .textsToTell = [this] { return product_.texts(); }};
    const ExitStatus status = StyleSetCommand("1", {"Opt1=" + std::to_string(value)}).run(console);
    if (status != ExitStatus::done) throw std::runtime_error(err.str());
  }

  Product& product_;
  int value_ = 0;
};

class EditBench {
 public:
  // reads: the edit begins with reading the files that it replaces, and so does the floor.
  EditBench(std::string root, std::string floor, bool reads, Edit edit, Engine& engine)
      : root_(std::move(root)), floor_(std::move(floor)), reads_(reads), edit_(std::move(edit)), engine_(engine) {}

  void alternate() {
    const auto before = fileIdentities(root_);
    const double edit = milliseconds(edit_);
    engine_.waitUntilSent(std::chrono::seconds(10));
    const auto replacements = replacementsFor(changedFiles(before, fileIdentities(root_)), floor_);
    if (replacements.empty()) throw std::runtime_error("the edit replaced no file");
    const double floor = milliseconds([&] {
      for (const auto& [path, bytes] : replacements) {
        if (reads_ && !readPropertyList(readWholeFile(path))) throw std::runtime_error(path + " is no property list");
        bareReplace(path, bytes);
      }
    });
    edits_.push_back(edit);
    floors_.push_back(floor);
    files_ = replacements.size();
  }

  // What came before warmed both up.
  void forget() {
    edits_.clear();
    floors_.clear();
  }

  void print() const { std::printf("%.4f %.4f %zu\n", median(edits_), median(floors_), files_); }

 private:
  std::string root_, floor_;
  bool reads_;
  Edit edit_;
  Engine& engine_;
  Times edits_, floors_;
  std::size_t files_ = 0;
};

void measure(EditBench bench, int count) {
  for (int i = 0; i < 3; ++i) bench.alternate();
  bench.forget();
  for (int i = count; i > 0; --i) bench.alternate();
  bench.print();
}

// How long one edit takes beside another one.
void compare(const Edit& edit, const Edit& other, int count) {
  Times edits, others;
  for (int i = -3; i < count; ++i) {
    const double here = milliseconds(edit), there = milliseconds(other);
    if (i < 0) continue;  // what warms both up
    edits.push_back(here);
    others.push_back(there);
  }
  std::printf("%.4f %.4f 1\n", median(edits), median(others));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 7) return 2;
  try {
    const std::string kind = argv[1], root = argv[2], floor = argv[5];
    Product product(optionsFor(root, argv[3], argv[4]));
    const std::unique_ptr<Engine> engine = product.makeEngine(product.files());
    if (kind == "keeping") {
      Product other(optionsFor(root, floor, argv[4]));
      const std::unique_ptr<Engine> otherEngine = other.makeEngine(other.files());
      Gesture gesture(product, *engine), otherGesture(other, *otherEngine);
      compare(std::ref(gesture), std::ref(otherGesture), std::atoi(argv[6]));
    } else if (kind == "gesture") {
      Gesture gesture(product, *engine);
      measure({root, floor, false, std::ref(gesture), *engine}, std::atoi(argv[6]));
    } else {
      Verb verb(product);
      measure({root, floor, true, std::ref(verb), *engine}, std::atoi(argv[6]));
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "edit_bench: %s\n", error.what());
    return 1;
  }
}
