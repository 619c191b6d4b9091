// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/architecture/source_tree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>

namespace tarvo {
namespace {

namespace fs = std::filesystem;

template <class Visit>
void eachSource(const fs::path& top, Visit visit) {
  for (const char* folder : {"platform", "style", "dict", "install", "app", "qt", "console", "tests"}) {
    for (const auto& entry : fs::recursive_directory_iterator(top / folder)) {
      const auto suffix = entry.path().extension();
      if (!entry.is_regular_file() || (suffix != ".cpp" && suffix != ".h")) continue;
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string text{std::istreambuf_iterator<char>(file), {}};
      visit(entry.path().lexically_relative(top).generic_string(), text);
    }
  }
}

}  // namespace

std::vector<Include> includesOf(const std::string& text) {
  static const std::regex form(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
  std::vector<Include> found;
  std::istringstream lines(text);
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    std::smatch match;
    if (line.find('#') != std::string::npos && std::regex_search(line, match, form)) {
      found.push_back({number, match[1] == "\"", match[2]});
    }
  }
  return found;
}

SourceTree readSourceTree(const std::string& top) {
  SourceTree tree;
  eachSource(top, [&](const std::string& path, const std::string& text) { tree[path] = includesOf(text); });
  return tree;
}

std::vector<std::string> filesThatName(const std::string& top, const std::string& word) {
  std::vector<std::string> found;
  eachSource(top, [&](const std::string& path, const std::string& text) {
    const bool isElsewhere = !path.starts_with("tests/") && !path.starts_with("platform/posix/");
    if (isElsewhere && text.find(word) != std::string::npos) found.push_back(path);
  });
  return found;
}

std::map<std::string, int> readLineCounts(const std::string& top) {
  std::map<std::string, int> counts;
  eachSource(top, [&](const std::string& path, const std::string& text) {
    counts[path] = static_cast<int>(std::count(text.begin(), text.end(), '\n'));
  });
  return counts;
}

}  // namespace tarvo
