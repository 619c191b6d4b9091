// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>

#include "app/product.h"
#include "app/program.h"
#include "platform/posix/posix_run_loop.h"
#include "platform/services/engine.h"
#include "tests/bench/quiet_shell.h"
#include "tests/support/faulty_files.h"

// What a start writes until its window comes up: start_writes ROOT HOME LANGUAGE FOLDER
// Starts the program on the product and keeps the bytes of each write in FOLDER. Prints a line for each in their order:
// "KEPT<tab>TARGET".
namespace {

using namespace tarvo;

class KeptWrites : public test::FaultyFiles {
 public:
  KeptWrites(Product& product, std::string folder) : FaultyFiles(product.files()), folder_(std::move(folder)) {}

  Result<Replaced> replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) override {
    const std::string kept = folder_ + "/" + std::to_string(count_++);
    std::ofstream(kept, std::ios::binary) << bytes;
    std::printf("%s\t%s\n", kept.c_str(), path.text().c_str());
    return FaultyFiles::replace(path, bytes, keeping);
  }

 private:
  std::string folder_;
  int count_ = 0;
};

void start(const ProductOptions& options, const std::string& folder) {
  Product product(options);
  KeptWrites files(product, folder);
  const auto engine = product.makeEngine(files);
  PosixRunLoop loop;
  QuietPanels panels;
  QuietWindows windows;
  QuietWorkspace workspace;
  Program program(product.services(files, *engine, loop, panels, windows, workspace));
  if (!program.construct() || !program.load()) throw std::runtime_error("the program did not start");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) return 2;
  try {
    start(ProductOptions{.root = argv[1], .home = argv[2], .language = argv[3]}, argv[4]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "start_writes: %s\n", error.what());
    return 1;
  }
}
