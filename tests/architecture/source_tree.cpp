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

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// A signature of several lines begins behind what ends something else.
std::size_t beginOf(const std::vector<std::string>& lines, std::size_t opening) {
  static const std::regex end(R"(^\s*$|^\s*//|^#|[;{}:]$)");
  std::size_t first = opening;
  while (first > 0 && !std::regex_search(lines[first - 1], end)) --first;
  return first;
}

// Of nothing or of a class, and no statement, type, table or lambda.
bool isSignature(const std::string& first, const std::string& last) {
  static const std::regex form(
      R"(^( {2})?(?! |if |for |while |switch |else |do |try |return |namespace |class |struct |enum )[^(]*\()");
  const bool opensOther = last.ends_with("= {") || last.ends_with("({") || last.find('[') != std::string::npos;
  return std::regex_search(first, form) && !opensOther;
}

}  // namespace

std::vector<FunctionLength> functionsOf(const std::string& text) {
  const std::vector<std::string> lines = linesOf(text);
  std::vector<FunctionLength> functions;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!lines[i].ends_with('{')) continue;
    const std::size_t first = beginOf(lines, i);
    if (!isSignature(lines[first], lines[i])) continue;
    const std::string closing = std::string(lines[first].find_first_not_of(' '), ' ') + '}';
    std::size_t last = i + 1;
    while (last < lines.size() && !lines[last].starts_with(closing)) ++last;
    functions.push_back({static_cast<int>(first + 1), static_cast<int>(last - first + 1)});
  }
  return functions;
}

std::map<std::string, std::vector<FunctionLength>> readFunctions(const std::string& top) {
  std::map<std::string, std::vector<FunctionLength>> functions;
  eachSource(top, [&](const std::string& path, const std::string& text) { functions[path] = functionsOf(text); });
  return functions;
}

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
