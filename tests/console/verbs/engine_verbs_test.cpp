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

TEST_F(EngineVerbs, statusOfAServiceThatIsNotThereIsNoFailure) {
  expectSaid({"--paths", "fixtures/paths/no-engine-paths.plist", "engine", "status", "--json"},
             R"({"form":"none","holds":false,"lastUpdate":null,"reachable":false})"
             "\n",
             "the style service cannot be reached (Failure.reach; Cause.noService)\n", 0);
  expectSaid({"--engine", "none", "engine", "status"},
             "form          none\nreachable     no\nholds styles  no\nlast update   never\n", "", 0);
}

TEST_F(EngineVerbs, statusOfAServerThatDoesNotListen) {
  expectSaid(
      {"--engine", "http://127.0.0.1:1/styles", "engine", "status", "--json"},
      R"({"form":"http","holds":false,"lastUpdate":null,"reachable":false})"
      "\n",
      "the style service cannot be reached (http://127.0.0.1:1/styles: Failure.reach; Cause.connectionRefused)\n", 0);
}

TEST_F(EngineVerbs, pushHandsTheStylesOver) {
  expectSaid({"engine", "push"}, "handed over 4 styles\n", "", 0);
  EXPECT_NE(root_.folder().read(std::string("root/Users/taro/") + engineFile).find("Beta"), std::string::npos);
  expectSaid({"engine", "pull"}, "nothing newer\n", "", 0);
}

TEST_F(EngineVerbs, pullGivesAnEmptyServiceTheLocalStyles) {
  expectSaid({"engine", "pull"}, "handed over 4 styles\n", "", 0);
}

TEST_F(EngineVerbs, pullTakesNewerStyles) {
  letTheEngineHold("two-styles.plist");
  putStyles("root4.plist");
  expectSaid({"engine", "pull"}, "took 2 styles\n", "", 0);
  EXPECT_EQ(run({"styles"}).out, "0  One  MG\n1  Two\n");
  expectSaid({"engine", "pull"}, "nothing newer\n", "", 0);
}

TEST_F(EngineVerbs, whatWasTakenButNotWrittenIsTold) {
  letTheEngineHold("two-styles.plist");
  putStyles("no-selection.plist");
  expectSaid({"engine", "pull"}, "took 2 styles\n",
             "the style file remembers no choice of a style: what was taken is not in it\n", 1);
  expectSaid({"engine", "push"}, "handed over 4 styles\n", "", 0);
}

TEST_F(EngineVerbs, stylesThatCannotBeReadAreNotSaidToBeTaken) {
  root_.folder().write(std::string("root/Users/taro/") + engineFile,
                       "<plist><dict><key>Stamp</key><string>00000000000000000007 2026-01-01T00:00:00Z</string>"
                       "<key>Style</key><array><dict/><string>two</string></array></dict></plist>");
  expectSaid({"engine", "pull"}, "", "the styles of the service cannot be read: nothing was taken\n", 1);
  EXPECT_NE(run({"styles"}).out.find("Beta"), std::string::npos);
}

TEST_F(EngineVerbs, aServiceThatIsNotThereIsAFailureOfTheExchange) {
  for (const char* verb : {"push", "pull"}) {
    const std::string line =
        std::string(verb) == "push"
            ? told("none",
                   "the styles were not handed over; there is no style service; tarvoctl engine status tells more")
            : "the style service cannot be reached; it keeps its former styles (Failure.reach; Cause.noService)\n";
    expectSaid({"--engine", "none", "engine", verb}, "", line, 1);
    expectSaid({"--paths", "fixtures/paths/no-engine-paths.plist", "engine", verb}, "", line, 1);
  }
}

TEST_F(EngineVerbs, aServiceThatCannotStoreIsAFailure) {
  fs::create_directories(fs::path(root_.home()) / engineFile / "in its place");
  expectSaid({"engine", "push"}, "",
             told("local", "the styles were not handed over; it is a folder; tarvoctl engine status tells more"), 1);
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
