// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/console/run_tool.h"
#include "tests/support/scenario_files.h"

// What a script meets of the texts and the help that ship with the program.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

std::string outputOf(const std::vector<std::string>& options, const std::string& lines, const std::string& told = "") {
  const ScenarioRoot root("plain");
  std::vector<std::string> arguments{"--root", root.root(), "--home", root.home()};
  arguments.insert(arguments.end(), options.begin(), options.end());
  arguments.insert(arguments.end(), {"run", "-"});
  const ToolResult result = runTool(
      arguments, scenarioFolder(),
      "file copy fixtures/root4.plist home:/Library/Preferences/Wordhaven/TarvoStyle2009.plist\nstart\n" + lines);
  EXPECT_EQ(result.err, told);
  EXPECT_EQ(result.status, 0);
  return result.out;
}

struct Words {
  const char *language, *unreachable, *choose, *noImport, *taken, *help, *why;
};

class ScriptLanguage : public testing::TestWithParam<Words> {};

TEST_P(ScriptLanguage, isTheUsers) {
  const Words& words = GetParam();
  const std::string out =
      outputOf({"--language", words.language},
               "answer open missing.whstyle\nmenu importMenu\nchoose stylePopup 3\npress StyleNameEditButton\n"
               "type styleNameField ALPHA\npress snOKButton\npress snCancelButton\nmenu helpMenu\nlog\n",
               told(scenarioFolder() + "/missing.whstyle", words.why));
  for (const char* text : {words.unreachable, words.choose, words.noImport, words.taken}) {
    EXPECT_NE(out.find(std::string("\"title\":\"") + text + '"'), std::string::npos) << text;
  }
  EXPECT_NE(out.find(words.help), std::string::npos) << out;
}

INSTANTIATE_TEST_SUITE_P(Console, ScriptLanguage,
                         testing::Values(Words{"en", "The translation service cannot be reached",
                                               "Select a Style File to Import", "The style could not be imported",
                                               "This name is taken", "en.lproj/Help/index.htm",
                                               "cannot be read; it is not there"},
                                         Words{"ja", "翻訳サービスに接続できません", "読み込むスタイルファイルを選択",
                                               "スタイルを読み込めませんでした", "この名前は使えません",
                                               "ja.lproj/Help/index.htm", "読み込めません; 見つかりません"}),
                         [](const testing::TestParamInfo<Words>& words) { return std::string(words.param.language); });

TEST(ScriptHelp, opensNothingWhereItIsMissing) {
  const TemporaryFolder resources;
  fs::copy_file(TARVO_SOURCE_DIR "/resources/WordhavenPaths.plist", resources / "WordhavenPaths.plist");
  fs::copy_file(TARVO_SOURCE_DIR "/resources/DefaultAddin.plist", resources / "DefaultAddin.plist");
  EXPECT_EQ(
      outputOf({"--resources", resources.path()}, "menu helpMenu\nlog\nexpect any {\"alert\":\"*\"}\nexpect end\n")
          .find("\"opened\""),
      std::string::npos);
}

}  // namespace
}  // namespace tarvo::test
