// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/architecture/source_tree.h"

namespace tarvo {
namespace {

constexpr int longestFile = 250;     // beyond this a file holds more than one duty
constexpr int medianFile = 70;       // of the .cpp
constexpr int longestFunction = 40;  // what fits on a screen

TEST(Size, noFileIsLongerThanItsLimit) {
  const auto counts = readLineCounts(TARVO_SOURCE_DIR);
  ASSERT_TRUE(counts.contains("platform/controls/controls.h"));
  EXPECT_GT(counts.at("platform/controls/controls.h"), 10);
  for (const auto& [path, lines] : counts) EXPECT_LE(lines, longestFile) << path;
}

TEST(Size, halfOfTheProgramsFilesAreShort) {
  std::vector<int> lengths;
  for (const auto& [path, lines] : readLineCounts(TARVO_SOURCE_DIR))
    if (!path.starts_with("tests/") && path.ends_with(".cpp")) lengths.push_back(lines);
  ASSERT_GT(lengths.size(), 100U);
  std::ranges::nth_element(lengths, lengths.begin() + static_cast<std::ptrdiff_t>(lengths.size() / 2));
  EXPECT_LE(lengths[lengths.size() / 2], medianFile);
}

TEST(Size, aFunctionIsCountedFromItsSignatureToItsBrace) {
  const auto found = functionsOf(
      "namespace tarvo {\n"
      "\n"
      "// Words.\n"
      "int first(int a,\n"
      "          int b) {\n"
      "  if (a == b) {\n"
      "    return a;\n"
      "  }\n"
      "  return b;\n"
      "}\n"
      "\n"
      "class Second {\n"
      " public:\n"
      "  explicit Second(int a) : a_(a) {}\n"
      "  int third() const {\n"
      "    return a_;\n"
      "  }\n"
      "};\n");
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(std::pair(found[0].line, found[0].lines), std::pair(4, 7));
  EXPECT_EQ(std::pair(found[1].line, found[1].lines), std::pair(15, 3));
}

TEST(Size, eachFunctionFitsOnAScreen) {
  const auto functions = readFunctions(TARVO_SOURCE_DIR);
  ASSERT_GT(functions.at("platform/plist/plist_binary.cpp").size(), 5U);
  for (const auto& [path, found] : functions) {
    for (const auto& [line, lines] : found) EXPECT_LE(lines, longestFunction) << path << ':' << line;
  }
}

}  // namespace
}  // namespace tarvo
