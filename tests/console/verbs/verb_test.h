// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "tests/console/run_tool.h"
#include "tests/support/scenario_files.h"

namespace tarvo::test {

// A product with a few dictionaries, on which tarvoctl is run as an administrator would.
class VerbTest : public testing::Test {
 protected:
  static constexpr const char* styleFile = "Library/Preferences/Wordhaven/TarvoStyle2009.plist";
  static constexpr const char* technical = "root/Library/Application Support/Wordhaven/TarvoEiwa/TechDic/";
  static constexpr const char* userDic = "root/Users/taro/Library/Application Support/Wordhaven/UserDic/";
  static constexpr const char* userTMA = "root/Users/taro/Library/Application Support/Wordhaven/UserTMA/";

  // A fixture as the user's styles.
  void putStyles(const std::string& fixture) const {
    const std::filesystem::path target = std::filesystem::path(root_.home()) / styleFile;
    std::filesystem::create_directories(target.parent_path());
    std::filesystem::copy_file(scenarioFolder() + "/fixtures/" + fixture, target,
                               std::filesystem::copy_options::overwrite_existing);
  }
  ToolResult run(const std::vector<std::string>& words, const std::vector<std::string>& strings = {"--strings", "none"},
                 const std::vector<std::string>& variables = {}) const {
    std::vector<std::string> arguments{"--root", root_.root(), "--home", root_.home(), "--language", "en"};
    arguments.insert(arguments.end(), strings.begin(), strings.end());
    arguments.insert(arguments.end(), words.begin(), words.end());
    return runTool(arguments, scenarioFolder(), "", variables);
  }
  // The same with the texts that people read.
  ToolResult runInEnglish(const std::vector<std::string>& words) const { return run(words, {}); }
  std::string style(int index) const { return run({"style", "show", std::to_string(index), "--json"}).out; }
  std::string stylePath() const { return root_.home() + "/" + styleFile; }
  std::string lockedLine() const {
    return told(
        root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.lock",
        "nothing was done; another manager works on these files; close it, or wait until its command has ended");
  }
  // The same without the lock, which a verb that then refuses has made.
  std::map<std::string, std::string> treeButLock() const {
    auto all = tree();
    all.erase("root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.lock");
    return all;
  }
  std::map<std::string, std::string> tree() const { return root_.tree(); }
  const ScenarioRoot root_{"plain"};
};

inline constexpr const char* noSuchStyle =
    "there is no such style; none has this index or name; tarvoctl styles lists them";
inline constexpr const char* isDividerTold =
    "is the line between styles; it has no options and no dictionaries; name a style";

}  // namespace tarvo::test
