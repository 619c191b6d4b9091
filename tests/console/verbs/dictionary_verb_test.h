// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/console/verbs/verb_test.h"

namespace tarvo::test {

// The verbs on dictionaries, on a product whose styles use some.
class DictionaryVerbs : public VerbTest {
 protected:
  DictionaryVerbs() { putStyles("root4.plist"); }
  void put(const std::string& name) const { root_.folder().write(technical + name, ""); }
  std::string lists(int index, const std::string& direction) const {
    return run({"dictionaries", std::to_string(index), direction, "--json"}).out;
  }
  // Runs a verb that has to end well and say nothing.
  void expectDone(const std::vector<std::string>& words) const {
    const ToolResult result = run(words);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.status, 0);
  }
  void expectRefused(const std::vector<std::string>& words, const std::string& name, const std::string& parts) const {
    const auto before = treeButLock();
    const ToolResult result = run(words);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, told(name, parts));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(treeButLock(), before) << parts;
  }
  static constexpr const char* unknown =
      "there is no such dictionary; the folder of this direction has none of this name; tarvoctl dictionaries lists "
      "them";
  static constexpr const char* notLoaded = "is not in the list; the style does not use it; add it first";
};

}  // namespace tarvo::test
