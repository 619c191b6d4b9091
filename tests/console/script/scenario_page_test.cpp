// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "app/operations.h"
#include "console/script/script_commands.h"
#include "tests/console/run_tool.h"
#include "tests/support/scenario_files.h"

// docs/scenarios.md against the language itself.
namespace tarvo::test {
namespace {

struct Row {
  std::string code;  // of the first column, without its backticks
  std::string second;
};

// The rows of the tables in a chapter that begin with code.
std::vector<Row> rowsOf(const std::string& chapter) {
  std::ifstream page(TARVO_SOURCE_DIR "/docs/scenarios.md");
  std::vector<Row> rows;
  bool inChapter = false;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("## ")) inChapter = line == "## " + chapter;
    if (!inChapter || !line.starts_with("| `")) continue;
    const std::size_t end = line.find("` | ");
    const std::size_t next = end + 4;
    rows.push_back({line.substr(3, end - 3), line.substr(next, line.find(" |", next) - next)});
  }
  return rows;
}

std::string letters(unsigned when) {
  std::string all;
  if ((when & ScriptCommand::before) != 0) all += "b ";
  if ((when & ScriptCommand::running) != 0) all += "r ";
  if ((when & ScriptCommand::terminated) != 0) all += "e ";
  return all.substr(0, all.size() - 1);
}

TEST(ScenarioPage, namesEveryCommandAndWhenItMayStand) {
  std::map<std::string, std::set<std::string>> told, known;
  for (const Row& row : rowsOf("Commands")) told[row.code.substr(0, row.code.find(' '))].insert(row.second);
  for (const auto commands : {gestureCommands(), requestCommands(), setupCommands(), outputCommands()}) {
    for (const ScriptCommand& command : commands) known[std::string(command.word)].insert(letters(command.when));
  }
  EXPECT_EQ(told, known);
}

// What the parts of a text that fit the expression hold in their groups.
std::set<std::string> found(const std::string& text, const std::string& expression) {
  std::set<std::string> words;
  const std::regex form(expression);
  for (std::sregex_iterator hit(text.begin(), text.end(), form), end; hit != end; ++hit) {
    for (std::size_t group = 1; group < hit->size(); ++group) words.insert((*hit)[group]);
  }
  words.erase("");
  return words;
}

std::string sourcesOfTheLanguage() {
  std::string all;
  for (const auto& entry : std::filesystem::directory_iterator(TARVO_SOURCE_DIR "/console/script")) {
    std::ifstream file(entry.path());
    all.append(std::istreambuf_iterator<char>(file), {});
  }
  return all;
}

TEST(ScenarioPage, namesEveryEventOfTheLog) {
  std::set<std::string> told;
  for (const Row& row : rowsOf("What `log` prints")) told.merge(found(row.code, R"re((?:^|`)\{"(\w+)":)re"));
  const std::set<std::string> known =
      found(sourcesOfTheLanguage(), R"re(note\(\{\{(?:\w+ \? )?"(\w+)"(?: : "(\w+)")?)re");
  EXPECT_EQ(told, known);
}

TEST(ScenarioPage, namesEveryKindOfControl) {
  std::set<std::string> told;
  for (const Row& row : rowsOf("What `show` prints")) told.merge(found(row.code, R"re((\w+))re"));
  std::string names = *found(sourcesOfTheLanguage(), R"re(kindNames\{([^}]*)\})re").begin();
  EXPECT_EQ(told, found(names, R"re("(\w+)")re"));
}

TEST(ScenarioPage, namesEveryOperationThatCanBeCalled) {
  std::set<std::string> told, known;
  for (const Row& row : rowsOf("What can be called")) told.insert(row.code);
  for (const Operation& operation : operations()) known.insert(std::string(operation.name));
  EXPECT_EQ(told, known);
}

// The lines of the first block of code.
std::string firstExample() {
  std::ifstream page(TARVO_SOURCE_DIR "/docs/scenarios.md");
  std::string lines, line;
  while (std::getline(page, line) && line != "```") {
  }
  while (std::getline(page, line) && line != "```") lines += line + '\n';
  return lines;
}

TEST(ScenarioPage, beginsWithAnExampleThatRuns) {
  const ScenarioRoot root("plain");
  const ToolResult result = runTool({"--root", root.root(), "--home", root.home(), "--strings", "none", "run"},
                                    scenarioFolder() + "/options", firstExample());
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0) << result.out;
  EXPECT_NE(result.out, "");
}

}  // namespace
}  // namespace tarvo::test
