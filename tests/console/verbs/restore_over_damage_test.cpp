// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "tests/console/verbs/verb_test.h"

// What earlier styles replace, and what may not be brought back.
namespace tarvo::test {
namespace {

class EarlierSetVerbs : public VerbTest {
 protected:
  EarlierSetVerbs() { putStyles("root4.plist"); }
};

// The styles are damaged; what can be brought back has styles of its own beside one that the product has too.
class AfterDamage : public EarlierSetVerbs {
 protected:
  AfterDamage() {
    std::filesystem::copy_file(scenarioFolder() + "/fixtures/two-styles.plist",
                               root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
    run({"style", "set", "1", "Opt2=2"});
    id_ = run({"history"}).out.substr(0, 23);
    damage();
  }
  void damage() const { root_.folder().write(std::string("root/Users/taro/") + styleFile, "damaged"); }
  std::string toldOf(const std::string& what, const std::string& cure) const {
    return told(stylePath(),
                what + "; it is no property list; it is kept beside them or else among the earlier styles" + cure);
  }
  std::string id_;
};

TEST_F(AfterDamage, stylesThatAreGoneAreToldByEachVerbWithTheCommandThatBringsThemBack) {
  std::filesystem::remove(stylePath());
  const std::string expected =
      told(stylePath(),
           "is not there any more, so the styles of the product are used; it was removed or moved away; "
           "tarvoctl restore " +
               id_ + " brings the latest kept styles back, tarvoctl history lists all");
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"styles"}, {"style", "show", "0"}, {"history"}, {"style", "set", "0", "Opt1=2"}}) {
    const ToolResult result = runInEnglish(words);
    EXPECT_EQ(result.err, expected) << words[0] << words.back();
    EXPECT_EQ(result.status, 0);
  }
  EXPECT_EQ(runInEnglish({"styles"}).err, "") << "the product's have become the user's";
  std::filesystem::remove(stylePath());
  EXPECT_EQ(runInEnglish({"restore", id_}).err, "");
  EXPECT_EQ(run({"styles"}).out.substr(0, 13), "0  NomalStyle");
}

TEST_F(AfterDamage, allThatIsBroughtBackSaysWhatItReplaced) {
  const ToolResult result = run({"restore", id_});
  EXPECT_EQ(result.err, toldOf("could not be read, and the earlier styles took its place", ""));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(root_.folder().read(std::string("root/Users/taro/") + styleFile + ".unreadable"), "damaged");
  EXPECT_EQ(run({"restore", id_}).err, "") << "it can be read again";
}

TEST_F(AfterDamage, oneStyleIsFoundInTheEarlierSetAndJoinsThoseOfTheProduct) {
  const ToolResult result = run({"--engine", "none", "restore", id_, "Alpha"});
  EXPECT_EQ(result.err, toldOf("could not be read, so the other styles are those of the product",
                               ", and restore without a style brings all of an earlier set back"));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(run({"styles"}).out, "0  One\n1  Two    MG\n2  Alpha\n");
  EXPECT_NE(style(2).find(R"("ID":2)"), std::string::npos) << style(2);
}

TEST_F(AfterDamage, theFirstStyleComesBackIntoTheFirstPlace) {
  EXPECT_EQ(run({"restore", id_, "0"}).status, 0);
  EXPECT_EQ(run({"styles"}).out, "0  One\n1  Two  MG\n") << "it keeps its name";
  EXPECT_NE(style(0).find("c.TRet"), std::string::npos) << style(0);
}

TEST_F(AfterDamage, aStyleThatTheEarlierSetLacksIsRefusedWithThatCause) {
  const ToolResult result = run({"restore", id_, "Two"});
  EXPECT_EQ(result.status, 1);
  EXPECT_TRUE(result.err.find("neither the name nor the place of “Two” is in it") != std::string::npos) << result.err;
  EXPECT_EQ(root_.folder().read(std::string("root/Users/taro/") + styleFile), "damaged");
}

TEST_F(AfterDamage, everyVerbSaysThatTheStylesCannotBeRead) {
  const std::string line = told(stylePath(),
                                "the styles cannot be read; it is no property list; mend the file, or bring earlier "
                                "styles back with restore");
  for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
           {"addins"}, {"tool-list"}, {"new", "ej", "user", "Mine"}, {"--engine", "none", "engine", "status"}}) {
    const ToolResult result = run(words);
    EXPECT_EQ(result.err, line) << words.back();
    EXPECT_EQ(result.status, 0) << words.back();
  }
  EXPECT_EQ(root_.folder().read(std::string("root/Users/taro/") + styleFile), "damaged");
}

TEST_F(AfterDamage, anEditThatBeginsWithTheProductsStylesSaysSo) {
  const ToolResult result = run({"--reseed", "--engine", "none", "style", "set", "0", "Opt1=1"});
  EXPECT_EQ(result.err, toldOf("cannot be read, so the styles of the product took its place",
                               ", and restore brings earlier ones back"));
}

TEST_F(EarlierSetVerbs, aSetThatHoldsNoStylesIsNotBroughtBack) {
  const std::string styles = run({"styles"}).out;
  const std::string folder = "root/Users/taro/Library/Application Support/Wordhaven/Tarvo Styles/";
  root_.folder().write(folder + "20200101T000000.000000Z edit -.plist", "<plist><dict/></plist>");
  root_.folder().write(folder + "20200102T000000.000000Z edit -.plist",
                       "<plist><dict><key>Style</key><array><string>oops</string></array></dict></plist>");
  for (const char* id : {"20200101", "20200102"}) {
    const ToolResult result = run({"restore", id});
    EXPECT_EQ(result.status, 1) << id;
    EXPECT_NE(result.err.find("what it holds is damaged"), std::string::npos) << result.err;
  }
  EXPECT_EQ(run({"styles"}).out, styles);
}

TEST_F(EarlierSetVerbs, choicesOfStylesThatAreGoneBecomeTheFirst) {
  root_.folder().write(
      "root/Users/taro/Library/Application Support/Wordhaven/Tarvo Styles/20200101T000000.000000Z edit -.plist",
      "<plist><dict><key>Style</key><array><dict><key>Name</key><string>S</string></dict></array></dict></plist>");
  ASSERT_EQ(run({"style", "use", "3", "QB"}).status, 0);
  ASSERT_EQ(run({"restore", "2020"}).status, 0);
  EXPECT_EQ(run({"styles"}).out, "0  S  MG QB\n");
}

}  // namespace
}  // namespace tarvo::test
