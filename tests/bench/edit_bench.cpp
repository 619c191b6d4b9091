// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <stdexcept>

#include "app/product.h"
#include "app/program.h"
#include "platform/posix/posix_run_loop.h"
#include "platform/services/engine.h"
#include "tests/bench/bare_replace.h"
#include "tests/bench/changed_files.h"
#include "tests/bench/quiet_shell.h"
#include "tests/bench/timing.h"

// One edit against bare replaces of the same files with the same bytes: edit_bench ROOT HOME ENGINE FLOOR COUNT
// ENGINE is "local" or "none", FLOOR a folder on the same disk. Prints the medians in milliseconds and the number of
// files that one edit replaces: "EDIT FLOOR FILES".
namespace {

using namespace tarvo;

ProductOptions optionsFor(const std::string& root, const std::string& home, const std::string& engine) {
  ProductOptions options;
  options.root = root;
  options.home = home;
  options.language = "en";
  if (engine == "none") options.engine = engine;
  return options;
}

// The files of an edit, to be replaced below another folder.
struct Replacement {
  std::string path, bytes;
};

std::vector<Replacement> replacementsFor(const std::vector<std::string>& files, const std::string& floor) {
  std::vector<Replacement> replacements;
  for (const auto& file : files) {
    replacements.push_back({floor + file, readWholeFile(file)});
    std::filesystem::create_directories(std::filesystem::path(floor + file).parent_path());
  }
  return replacements;
}

class EditBench {
 public:
  EditBench(const std::string& root, const ProductOptions& options, std::string floor)
      : root_(root),
        floor_(std::move(floor)),
        product_(options),
        engine_(product_.makeEngine(product_.files())),
        program_(product_.services(product_.files(), *engine_, loop_, panels_, windows_, workspace_)) {
    if (!program_.construct() || !program_.load()) {
      throw std::runtime_error("the program did not start: " + product_.problem());
    }
    program_.interface().style.stylePopup.userChoose(1);
  }

  void alternate() {
    PopUpButton& option = program_.interface().options.indexPopups.front();
    const auto before = fileIdentities(root_);
    const int other = option.indexOfSelectedItem() == 0 ? 1 : 0;
    const double edit = milliseconds([&] { option.userChoose(other); });
    const auto replacements = replacementsFor(changedFiles(before, fileIdentities(root_)), floor_);
    if (replacements.empty()) throw std::runtime_error("the edit replaced no file");
    const double floor = milliseconds([&] {
      for (const auto& [path, bytes] : replacements) bareReplace(path, bytes);
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
  Product product_;
  std::unique_ptr<Engine> engine_;
  PosixRunLoop loop_;
  QuietPanels panels_;
  QuietWindows windows_;
  QuietWorkspace workspace_;
  Program program_;
  Times edits_, floors_;
  std::size_t files_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 6) return 2;
  try {
    EditBench bench(argv[1], optionsFor(argv[1], argv[2], argv[3]), argv[4]);
    for (int i = 0; i < 3; ++i) bench.alternate();
    bench.forget();
    for (int i = std::atoi(argv[5]); i > 0; --i) bench.alternate();
    bench.print();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "edit_bench: %s\n", error.what());
    return 1;
  }
}
