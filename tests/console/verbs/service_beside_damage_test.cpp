// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "tests/console/verbs/verb_test.h"

// What a style service keeps while the style file cannot be read.
namespace tarvo::test {
namespace {

// The service holds four styles, and the product's two stand in for a file that is damaged.
class ServiceBesideDamage : public VerbTest {
 protected:
  static constexpr const char* engineFile = "Library/Application Support/Wordhaven/TarvoEngine.plist";
  ServiceBesideDamage() {
    putStyles("root4.plist");
    run({"engine", "push"});
    std::filesystem::copy_file(scenarioFolder() + "/fixtures/two-styles.plist",
                               root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
    root_.folder().write(std::string("root/Users/taro/") + styleFile, "broken");
  }
  std::string held() const { return root_.folder().read(std::string("root/Users/taro/") + engineFile); }
  void expectSaid(const std::vector<std::string>& words, const std::string& out) const {
    const ToolResult result = run(words);
    EXPECT_EQ(result.out, out);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.status, 0);
  }
  std::string leftAlone() const {
    return told("local",
                "was left alone; the styles here began as the product’s, since the style file could not be read; bring "
                "yours back with restore, take those of the service with engine pull, or hand these over with engine "
                "push");
  }
};

TEST_F(ServiceBesideDamage, noEditReplacesTheSetOfTheService) {
  const std::string before = held();
  const ToolResult first = run({"--reseed", "style", "set", "0", "Opt1=1"});
  EXPECT_TRUE(first.err.ends_with(leftAlone())) << first.err;
  EXPECT_EQ(first.status, 0);
  EXPECT_EQ(held(), before);
  const ToolResult later = run({"--json", "style", "set", "0", "Opt1=2"});
  EXPECT_EQ(later.err, leftAlone()) << "also when the file can be read again";
  EXPECT_NE(later.out.find(R"("registered":false)"), std::string::npos) << later.out;
  EXPECT_EQ(held(), before);
  EXPECT_EQ(run({"styles"}).out, "0  One\n1  Two  MG\n");
}

TEST_F(ServiceBesideDamage, isKnownAlsoWhereAnEditAskedNoService) {
  const std::string before = held();
  run({"--engine", "none", "--reseed", "style", "set", "0", "Opt1=1"});
  EXPECT_EQ(run({"style", "set", "0", "Opt1=2"}).err, leftAlone());
  EXPECT_EQ(held(), before);
}

TEST_F(ServiceBesideDamage, thePushIsTheWordToReplaceIt) {
  run({"--reseed", "style", "set", "0", "Opt1=1"});
  expectSaid({"engine", "push"}, "handed over 2 styles\n");
  EXPECT_EQ(held().find("Beta"), std::string::npos);
  expectSaid({"style", "set", "0", "Opt1=2"}, "");
}

TEST_F(ServiceBesideDamage, thePullTakesWhatTheServiceKept) {
  run({"--reseed", "style", "set", "0", "Opt1=1"});
  expectSaid({"engine", "pull"}, "took 4 styles\n");
  expectSaid({"style", "set", "0", "Opt1=2"}, "");
}

TEST_F(ServiceBesideDamage, aRestoredSetReplacesIt) {
  putStyles("root4.plist");
  run({"style", "set", "1", "Opt1=2"});
  root_.folder().write(std::string("root/Users/taro/") + styleFile, "broken");
  const std::string id = run({"history"}).out.substr(0, 23);
  const std::string before = held();
  EXPECT_EQ(run({"restore", id}).status, 0);
  EXPECT_NE(held(), before);
  expectSaid({"style", "set", "0", "Opt1=1"}, "");
}

// As the window goes: every call is made as ever, and the engine keeps its set.
TEST_F(ServiceBesideDamage, aStyleThatIsOnlyChosenReplacesNothingAndTheLineSaysSo) {
  const std::string before = held();
  root_.folder().write("choose.scenario", "start\npress sslOKButton\nlog\nchoose stylePopup 1\nlog\nshow noticeText\n");
  const ToolResult result = run({"--engine", "", "run", root_.folder() / "choose.scenario"}, {});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_NE(result.out.find(R"({"engine":"sendRegistStyle")"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("The style service keeps its own styles: those here began as the product’s"),
            std::string::npos)
      << result.out;
  EXPECT_EQ(held(), before);
  EXPECT_EQ(run({"style", "set", "0", "Opt1=1"}).err, leftAlone()) << "in later runs too";
}

}  // namespace
}  // namespace tarvo::test
