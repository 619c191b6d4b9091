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

// A product whose Office and mail programs take add-ins, on which tarvoctl is run as an administrator would.
class AddinVerbs : public testing::Test {
 protected:
  ToolResult run(const std::vector<std::string>& words) const {
    std::vector<std::string> arguments{
        "--root",     root_.root(), "--home",    root_.home(), "--resources", root_.root() + "/Bundle",
        "--language", "en",         "--strings", "none",       "--strings",   "fixtures/texts/addin-texts.strings"};
    arguments.insert(arguments.end(), words.begin(), words.end());
    return runTool(arguments, scenarioFolder());
  }
  void expect(const std::vector<std::string>& words, int status, const std::string& out, const std::string& err) const {
    const ToolResult result = run(words);
    EXPECT_EQ(result.out, out);
    EXPECT_EQ(result.err, err);
    EXPECT_EQ(result.status, status);
  }
  std::string real(const std::string& path) const { return root_.root() + path; }
  // The manager itself, from its start to its end.
  void startAndEnd() const {
    root_.folder().write("start.scenario", "start\nquit\n");
    EXPECT_EQ(run({"run", root_.folder() / "start.scenario"}).status, 0);
  }
  // A verb that changes nothing but the lock, which it takes first.
  void expectUntouched(const std::vector<std::string>& words, int status, const std::string& err) const {
    makeFolder("/Users/taro/Library/Preferences");
    auto before = tree();
    before.erase(lock);
    expect(words, status, "", err);
    auto after = tree();
    after.erase(lock);
    EXPECT_EQ(after, before);
  }
  void put(const std::string& path, const std::string& text) const { root_.folder().write("root" + path, text); }
  std::string read(const std::string& path) const { return root_.folder().read("root" + path); }
  bool exists(const std::string& path) const { return std::filesystem::exists(root_.root() + path); }
  void makeFolder(const std::string& path) const { std::filesystem::create_directories(root_.root() + path); }
  // What the doctor says of it, as "state: detail".
  std::string diagnosis(const std::string& what) const {
    const std::string out = run({"doctor", "--json"}).out;
    const std::size_t at = out.find("\"what\":\"" + what + "\"");
    if (at == std::string::npos) return "nothing";
    const std::size_t begin = out.rfind('{', at), end = out.find('}', at);
    const auto value = [&](const std::string& key) {
      const std::size_t from = out.find("\"" + key + "\":\"", begin) + key.size() + 4;
      return from < end ? out.substr(from, out.find('"', from) - from) : std::string();
    };
    return value("state") + ": " + value("detail");
  }
  std::map<std::string, std::string> tree() const { return root_.tree(); }
  static constexpr const char* lock = "root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.lock";
  static constexpr const char* startup = "/Applications/O11/Office/Startup/Word";
  static constexpr const char* macro = "/Applications/O11/Office/Startup/Word/Tarvo.dotm";
  static constexpr const char* scripts = "/Users/taro/Library/Scripts/Applications/Mail/Tarvo";
  static constexpr const char* styles = "/Users/taro/Library/Preferences/Wordhaven/TarvoStyle2009.plist";
  static constexpr const char* toolList = "/Users/taro/Library/Preferences/Wordhaven/TarvoManager.txt";
  const ScenarioRoot root_{"addins"};
};

}  // namespace tarvo::test
