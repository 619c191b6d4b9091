// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <sstream>

#include "tests/console/verbs/verb_test.h"

// The verbs that show and bring back earlier styles.
namespace tarvo::test {
namespace {

class HistoryVerbs : public VerbTest {
 protected:
  HistoryVerbs() { putStyles("root4.plist"); }
  static constexpr const char* earlier_ = "root/Users/taro/Library/Application Support/Wordhaven/Tarvo Styles";
  std::vector<std::string> ids() {
    std::vector<std::string> ids;
    std::istringstream lines(run({"history"}).out);
    for (std::string line; std::getline(lines, line);) {
      if (!line.starts_with(' ')) ids.push_back(line.substr(0, line.find(' ')));
    }
    return ids;
  }
};

TEST_F(HistoryVerbs, isEmptyWhereNothingWasReplacedAndOnlyReads) {
  const auto before = tree();
  const ToolResult result = run({"history"});
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(run({"--json", "history"}).out, "[]\n");
  EXPECT_EQ(tree(), before);
}

TEST_F(HistoryVerbs, tellsNewestFirstWhatEachEditDid) {
  ASSERT_EQ(run({"style", "set", "1", "Opt2=2"}).status, 0);
  ASSERT_EQ(run({"style", "rename", "1", "Patents"}).status, 0);
  const ToolResult result = runInEnglish({"history"});
  EXPECT_EQ(result.status, 0);
  const std::size_t rename = result.out.find("edit  Patents: renamed, was “Alpha”\n");
  const std::size_t option = result.out.find("edit  Alpha: Unknown words ");
  EXPECT_NE(rename, std::string::npos) << result.out;
  EXPECT_NE(option, std::string::npos) << result.out;
  EXPECT_LT(rename, option);
  EXPECT_EQ(ids().size(), 2U);
  EXPECT_TRUE(runInEnglish({"history", ids().front()}).out.starts_with(ids().front() + "  edit  Patents: renamed"));
}

TEST_F(HistoryVerbs, whatCannotBeKeptIsTold) {
  const std::string place = "root/Users/taro/Library/Application Support/Wordhaven/Tarvo Styles";
  root_.folder().write(place, "a file in the way");
  const ToolResult result = runInEnglish({"style", "set", "1", "Opt2=2"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, told(stylePath(), "The former styles could not be kept: " + root_.folder() / place +
                                              ": no copy of it can be kept; what should be a folder is none"));
}

TEST_F(HistoryVerbs, whatIsTooOldGoesOnlyWithAVerbThatWrites) {
  const std::vector<std::string> edit{"style", "set", "1", "Opt2=2"};
  ASSERT_EQ(run(edit).status, 0);
  const std::string old = std::string(earlier_) + "/19700101T010000.000000Z edit -.plist";
  root_.folder().write(old, "<plist><dict/></plist>");
  const auto before = tree();
  EXPECT_EQ(run(edit).out, "already\n");
  EXPECT_EQ(tree(), before);
  ASSERT_EQ(run({"style", "set", "1", "Opt2=1"}).status, 0);
  EXPECT_EQ(ids().size(), 2U);
}

TEST_F(HistoryVerbs, aChoiceOfAToolIsNoEarlierSet) {
  ASSERT_EQ(run({"style", "use", "1", "MG"}).status, 0);
  EXPECT_TRUE(ids().empty());
}

TEST_F(HistoryVerbs, bringsAllBackWithTheChoices) {
  const std::string before = style(1);
  const std::string styles = run({"styles"}).out;
  ASSERT_EQ(run({"style", "set", "1", "Opt2=2"}).status, 0);
  ASSERT_EQ(run({"style", "use", "3", "MG"}).status, 0);
  const ToolResult result = run({"restore", ids().front()});
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(style(1), before);
  EXPECT_EQ(run({"styles"}).out, styles);
  EXPECT_NE(run({"history"}).out.find("  restore  "), std::string::npos);
}

TEST_F(HistoryVerbs, restoringWhatIsSoAlreadySaysSo) {
  ASSERT_EQ(run({"style", "set", "1", "Opt2=2"}).status, 0);
  const std::string id = ids().front();
  ASSERT_EQ(run({"restore", id}).status, 0);
  const ToolResult again = run({"restore", id});
  EXPECT_EQ(again.out, "already\n");
  EXPECT_EQ(again.status, 0);
}

TEST_F(HistoryVerbs, bringsOneStyleBackByItsNameAndLeavesTheOthers) {
  const std::string before = style(1);
  ASSERT_EQ(run({"style", "set", "1", "Opt2=2"}).status, 0);
  const std::string id = ids().front();
  ASSERT_EQ(run({"style", "set", "3", "Opt2=2"}).status, 0);
  const std::string other = style(3);
  ASSERT_EQ(run({"restore", id, "Alpha"}).status, 0);
  EXPECT_EQ(style(1), before);
  EXPECT_EQ(style(3), other);
}

TEST_F(HistoryVerbs, refusesAnIdThatNoSetHas) {
  ASSERT_EQ(run({"style", "set", "1", "Opt2=2"}).status, 0);
  ASSERT_EQ(run({"style", "set", "1", "Opt2=1"}).status, 0);
  for (const char* id : {"2", "1999", "x"}) {
    const ToolResult result = run({"restore", id});
    EXPECT_EQ(result.status, 1) << id;
    EXPECT_TRUE(result.err.starts_with("tarvoctl: " + std::string(id) + ": ")) << result.err;
  }
}

TEST_F(HistoryVerbs, bringsStylesBackAfterTheFileWasDamaged) {
  ASSERT_EQ(run({"style", "set", "1", "Opt2=2"}).status, 0);
  const std::string styles = run({"styles"}).out;
  const std::string id = ids().front();
  root_.folder().write(std::string("root/Users/taro/") + styleFile, "damaged");
  const ToolResult result = run({"restore", id});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(run({"styles"}).out, styles);
}

TEST_F(HistoryVerbs, aSetWhoseBytesWereChangedIsNotBroughtBack) {
  ASSERT_EQ(run({"style", "set", "1", "Opt2=2"}).status, 0);
  const std::string id = ids().front();
  const std::string set = std::string(earlier_) + "/" + root_.folder().names(earlier_).at(0);
  root_.folder().write(set, root_.folder().read(set) + "<!-- forged -->");
  const auto before = treeButLock();
  const ToolResult result = runInEnglish({"restore", id});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_TRUE(result.err.starts_with("tarvoctl: " + root_.folder() / set + ": cannot be read; ")) << result.err;
  EXPECT_EQ(treeButLock(), before);
  EXPECT_EQ(run({"history"}).status, 0);
}

TEST_F(HistoryVerbs, setsThatCannotBeListedAreNotDenied) {
  root_.folder().write(earlier_, "no folder");
  const std::string folder = root_.folder() / earlier_;
  const std::string told = "tarvoctl: " + folder + ": cannot be listed; what should be a folder is none";
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"history"}, {"history", "2026"}, {"restore", "2026"}}) {
    const ToolResult result = runInEnglish(words);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(result.err.starts_with(told)) << result.err;
  }
  EXPECT_NE(run({"doctor"}).out.find("problem  earlier styles "), std::string::npos);
}

TEST_F(HistoryVerbs, saysThatThePresentStylesCannotBeRead) {
  ASSERT_EQ(run({"style", "rename", "1", "Patents"}).status, 0);
  ASSERT_EQ(run({"style", "rename", "1", "Letters"}).status, 0);
  root_.folder().write(std::string("root/Users/taro/") + styleFile, "damaged");
  const ToolResult result = runInEnglish({"history"});
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.out.find("edit  not known: the present styles cannot be read\n"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("edit  Patents: renamed"), std::string::npos) << result.out;
  EXPECT_TRUE(result.err.starts_with("tarvoctl: " + stylePath() + ": the present styles cannot be read")) << result.err;
}

}  // namespace
}  // namespace tarvo::test
