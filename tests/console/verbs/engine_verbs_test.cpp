// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "tests/console/verbs/verb_test.h"

// The verbs on the style service, with the local one and with none.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

class EngineVerbs : public VerbTest {
 protected:
  static constexpr const char* engineFile = "Library/Application Support/Wordhaven/TarvoEngine.plist";
  static constexpr const char* settings = "root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.plist";
  EngineVerbs() { putStyles("root4.plist"); }
  std::string status() const { return run({"engine", "status", "--json"}).out; }
  void expectSaid(const std::vector<std::string>& words, const std::string& out, const std::string& err,
                  int status) const {
    const ToolResult result = run(words);
    EXPECT_EQ(result.out, out);
    EXPECT_EQ(result.err, err);
    EXPECT_EQ(result.status, status);
  }
  // As if another machine had handed these over to the same service.
  void letTheEngineHold(const std::string& fixture) const {
    putStyles(fixture);
    run({"engine", "push"});
    fs::remove(root_.folder() / settings);
  }
};

TEST_F(EngineVerbs, statusTellsWhatTheServiceIsAndHolds) {
  EXPECT_EQ(status(), R"({"form":"local","holds":false,"lastUpdate":null,"reachable":true})"
                      "\n");
  run({"engine", "push"});
  const std::string after = status();
  EXPECT_TRUE(after.starts_with(R"({"form":"local","holds":true,"lastUpdate":"00000000000000000001 )")) << after;
  const std::string table = run({"engine", "status"}).out;
  EXPECT_TRUE(table.starts_with("form          local\nreachable     yes\nholds styles  yes\nlast update   0000"))
      << table;
}

TEST_F(EngineVerbs, statusOnlyReads) {
  const auto before = tree();
  run({"engine", "status"});
  run({"--engine", "none", "engine", "status", "--json"});
  EXPECT_EQ(tree(), before);
}

std::string unreached(const std::string& cause) {
  return "the style service cannot be reached; " + cause + "; check its address, and that it runs";
}

TEST_F(EngineVerbs, statusOfAServiceThatIsNotThereIsNoFailure) {
  expectSaid({"--paths", "fixtures/paths/no-engine-paths.plist", "engine", "status", "--json"},
             R"({"form":"none","holds":false,"lastUpdate":null,"reachable":false})"
             "\n",
             told("none", unreached("there is no style service")), 0);
  expectSaid({"--engine", "none", "engine", "status"},
             "form          none\nreachable     no\nholds styles  no\nlast update   never\n", "", 0);
}

TEST_F(EngineVerbs, statusOfAServerThatDoesNotListen) {
  expectSaid({"--engine", "http://127.0.0.1:1/styles", "engine", "status", "--json"},
             R"({"form":"http","holds":false,"lastUpdate":null,"reachable":false})"
             "\n",
             told("http://127.0.0.1:1/styles", unreached("nobody answers there")), 0);
}

TEST_F(EngineVerbs, pushHandsTheStylesOver) {
  expectSaid({"engine", "push"}, "handed over 4 styles\n", "", 0);
  EXPECT_NE(root_.folder().read(std::string("root/Users/taro/") + engineFile).find("Beta"), std::string::npos);
  expectSaid({"engine", "pull"}, "already\n", "", 0);
}

TEST_F(EngineVerbs, pullGivesAnEmptyServiceTheLocalStyles) {
  expectSaid({"engine", "pull"}, "handed over 4 styles\n", "", 0);
}

TEST_F(EngineVerbs, pullTakesNewerStyles) {
  letTheEngineHold("two-styles.plist");
  putStyles("root4.plist");
  expectSaid({"engine", "pull"}, "took 2 styles\n", "", 0);
  EXPECT_EQ(run({"styles"}).out, "0  One  MG\n1  Two\n");
  expectSaid({"engine", "pull"}, "already\n", "", 0);
}

TEST_F(EngineVerbs, pullKeepsTheChoiceOfTheRememberedToolAndWritesTheToolList) {
  letTheEngineHold("root4.plist");
  putStyles("two-styles.plist");
  root_.folder().write(settings, "<plist><dict><key>SMSelectedTag</key><string>QB</string></dict></plist>");
  expectSaid({"engine", "pull"}, "took 4 styles\n", "", 0);
  EXPECT_EQ(run({"styles"}).out, "0  NomalStyle  QB\n1  Alpha       MG\n2  (divider)\n3  Beta\n");
  const std::string stored = root_.folder().read(settings);
  EXPECT_NE(stored.find("<key>SMSelectedTag</key>\n\t<string>QB</string>"), std::string::npos) << stored;
  EXPECT_EQ(stored.find("ToolbarTag"), std::string::npos);
  const std::string list = root_.folder().read("root/Users/taro/Library/Preferences/Wordhaven/TarvoManager.txt");
  EXPECT_NE(list.find("Tool_Path=tMG8\r\n"), std::string::npos);
}

TEST_F(EngineVerbs, pullOfFewerStylesThanTheChoiceCountsChoosesNone) {
  letTheEngineHold("two-styles.plist");
  putStyles("root4.plist");
  root_.folder().write(settings, "<plist><dict><key>SMSelectedTag</key><string>QB</string></dict></plist>");
  expectSaid({"engine", "pull"}, "took 2 styles\n", "", 0);
  EXPECT_NE(
      root_.folder().read(std::string("root/Users/taro/") + styleFile).find("<key>QB</key>\n\t\t<integer>-1</integer>"),
      std::string::npos);
}

TEST_F(EngineVerbs, pullOfNothingNewerWritesNothing) {
  run({"engine", "push"});
  const auto before = tree();
  expectSaid({"engine", "pull"}, "already\n", "", 0);
  expectSaid({"engine", "pull", "--json"},
             R"({"already":true,"changed":[],"done":true,"registered":null})"
             "\n",
             "", 0);
  EXPECT_EQ(tree(), before);
}

TEST_F(EngineVerbs, pullAnswersAsJson) {
  expectSaid({"engine", "pull", "--json"},
             R"({"changed":["local"],"done":true,"registered":true})"
             "\n",
             "", 0);
  letTheEngineHold("two-styles.plist");
  putStyles("root4.plist");
  expectSaid({"engine", "pull", "--json"},
             R"({"changed":[")" + stylePath() + R"("],"done":true,"registered":true})" + "\n", "", 0);
}

TEST_F(EngineVerbs, pullLeavesAStyleFileThatCannotBeRead) {
  letTheEngineHold("two-styles.plist");
  root_.folder().write(std::string("root/Users/taro/") + styleFile, "broken");
  const auto before = tree();
  expectSaid({"engine", "pull"}, "",
             told(stylePath(),
                  "nothing was changed, the style file cannot be read; it is no property list; mend it, bring "
                  "earlier styles back with restore, or begin with the styles of the product with --reseed"),
             1);
  EXPECT_EQ(tree(), before);
}

TEST_F(EngineVerbs, whatWasTakenButCannotBeStoredIsTold) {
  letTheEngineHold("two-styles.plist");
  putStyles("root4.plist");
  const std::string list = root_.home() + "/Library/Preferences/Wordhaven/TarvoManager.txt";
  fs::create_directories(list + "/in the way");
  expectSaid({"engine", "pull"}, "", told(list, "cannot be written; it is a folder"), 1);
  EXPECT_EQ(run({"styles"}).out, "0  One  MG\n1  Two\n");
}

TEST_F(EngineVerbs, whatWasTakenButNotWrittenIsTold) {
  letTheEngineHold("two-styles.plist");
  putStyles("no-selection.plist");
  expectSaid({"engine", "pull"}, "",
             told(stylePath(),
                  "what was taken is not in it; the style file remembers no choice of a style; start the "
                  "manager with the product's styles"),
             1);
  expectSaid({"engine", "push"}, "handed over 4 styles\n", "", 0);
}

TEST_F(EngineVerbs, stylesThatCannotBeReadAreNotSaidToBeTaken) {
  root_.folder().write(std::string("root/Users/taro/") + engineFile,
                       "<plist><dict><key>Stamp</key><string>00000000000000000007 2026-01-01T00:00:00Z</string>"
                       "<key>Style</key><array><dict/><string>two</string></array></dict></plist>");
  expectSaid({"engine", "pull"}, "",
             told("local", "no styles were taken; what it holds is damaged; tarvoctl engine status tells more"), 1);
  EXPECT_NE(run({"styles"}).out.find("Beta"), std::string::npos);
}

TEST_F(EngineVerbs, aServiceThatIsNotThereIsAFailureOfTheExchange) {
  const auto before = treeButLock();
  for (const auto& [verb, what] :
       {std::pair("push", "the styles were not handed over"), {"pull", "no styles were taken"}}) {
    const std::string line =
        told("none", std::string(what) + "; there is no style service; tarvoctl engine status tells more");
    expectSaid({"--engine", "none", "engine", verb}, "", line, 1);
    expectSaid({"--paths", "fixtures/paths/no-engine-paths.plist", "engine", verb}, "", line, 1);
  }
  expectSaid({"--engine", "http://127.0.0.1:1/styles", "engine", "pull"}, "",
             told("http://127.0.0.1:1/styles",
                  "no styles were taken; nobody answers there; tarvoctl engine status tells more"),
             1);
  EXPECT_EQ(treeButLock(), before);
}

TEST_F(EngineVerbs, aServiceThatCannotStoreIsAFailure) {
  fs::create_directories(fs::path(root_.home()) / engineFile / "in its place");
  const std::string line =
      told("local", "the styles were not handed over; it is a folder; tarvoctl engine status tells more");
  expectSaid({"engine", "push"}, "", line, 1);
}

TEST_F(EngineVerbs, aFileWithoutStylesIsNotHandedOver) {
  root_.folder().write(std::string("root/Users/taro/") + styleFile,
                       "<plist><dict><key>Selection</key><dict/></dict></plist>");
  expectSaid({"engine", "push"}, "",
             told(stylePath(),
                  "nothing was handed over; the style file holds no styles; install the product's "
                  "styles"),
             1);
  EXPECT_FALSE(fs::exists(fs::path(root_.home()) / engineFile));
}

}  // namespace
}  // namespace tarvo::test
