// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <dirent.h>
#include <malloc.h>
#include <sys/xattr.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/product.h"
#include "dict/dict_controller.h"
#include "tests/bench/timing.h"

// A scan of a folder of dictionaries against a bare listing of it that reads one attribute of each entry:
// scan_bench ROOT FOLDER COUNT
// FOLDER is known below ROOT. Prints the medians in milliseconds, the number of entries and what each takes of memory
// in bytes, loaded and held ready for the picker: "SCAN FLOOR ENTRIES BYTES".
namespace {

using namespace tarvo;

// Answers the number of entries, so that nothing can be left out.
std::size_t listBarely(const std::string& folder) {
  DIR* open = opendir(folder.c_str());
  if (open == nullptr) throw std::runtime_error("cannot list " + folder);
  std::size_t count = 0;
  char information[32];
  while (const dirent* entry = readdir(open)) {
    const std::string name = entry->d_name;
    if (name == "." || name == "..") continue;
    std::string path = folder;
    path += '/';
    path += name;
    getxattr(path.c_str(), "user.com.apple.FinderInfo", information, sizeof information);
    ++count;
  }
  closedir(open);
  return count;
}

class ScanBench {
 public:
  ScanBench(const std::string& root, std::string folder)
      : product_(optionsFor(root)), folder_(std::move(folder)), bare_(root + folder_) {}

  void run(int count) {
    measureMemory();
    std::vector<double> scans, floors;
    for (int i = 0; i < count; ++i) {
      DictController list(services());
      scans.push_back(milliseconds([&] {
        list.initializeDictController(DictionaryKind::technical, product_.locations().onDisk(ProductPath(folder_)),
                                      Direction::englishToJapanese);
      }));
      floors.push_back(milliseconds([&] { entries_ = listBarely(bare_); }));
      if (list.getAllDictionary().size() != entries_) throw std::runtime_error("the scan missed an entry");
    }
    std::printf("%.4f %.4f %zu %zu\n", median(scans), median(floors), entries_, bytes_ / entries_);
  }

 private:
  static ProductOptions optionsFor(const std::string& root) {
    ProductOptions options;
    options.root = root;
    options.home = root + "/Users/bench";
    options.language = "en";
    return options;
  }
  DictController::Services services() {
    return {product_.files(), product_.texts(), product_.bundle(), product_.paths(), product_.locations()};
  }
  void measureMemory() {
    entries_ = listBarely(bare_);
    const std::size_t before = mallinfo2().uordblks;
    DictController list(services());
    list.initializeDictController(DictionaryKind::technical, product_.locations().onDisk(ProductPath(folder_)),
                                  Direction::englishToJapanese);
    const Names offered = list.notSelectedDictionary();
    if (offered.size() != entries_) throw std::runtime_error("the scan missed an entry");
    bytes_ = mallinfo2().uordblks - before;
  }
  Product product_;
  std::string folder_, bare_;
  std::size_t entries_ = 0, bytes_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  try {
    ScanBench(argv[1], argv[2]).run(std::atoi(argv[3]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "scan_bench: %s\n", error.what());
    return 1;
  }
}
