// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/console/verbs/verb_test.h"

// The verb that sets options.
namespace tarvo::test {
namespace {

using Verbs = VerbTest;

TEST_F(Verbs, styleSetStoresEachValueAndLeavesTheChoicesAlone) {
  putStyles("root4.plist");
  const ToolResult result = run({"style", "set", "1", "Opt2=2", "TOpt5=1", "GENE_NADONO=e.g.", "alphabet=1"});
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(style(1),
            R"({"EJ":{"Opt1":1,"Opt2":2,"Opt3":0},"ID":1,"JE":{"GENE_NADONO":"e.g.","TOpt1":0,"TOpt2":0,"TOpt3":0,)"
            R"("TOpt4":false,"TOpt5":1,"alphabet":"1"},"Name":"Alpha"})"
            "\n");
  EXPECT_EQ(run({"styles"}).out, "0  NomalStyle  MG\n1  Alpha\n2  (divider)\n3  Beta        QB\n");
}

TEST_F(Verbs, styleSetWithAValueThatNoControlOffersChangesNothing) {
  putStyles("root4.plist");
  const auto before = tree();
  const std::string notAValue = ": not a value for this; allowed: ";
  for (const auto& [pair, line] : {std::pair<std::string, std::string>{"Opt1=3", "Opt1 3" + notAValue + "0, 1, 2\n"},
                                   {"Opt1=-1", "Opt1 -1" + notAValue + "0, 1, 2\n"},
                                   {"Opt1=", "Opt1 " + notAValue + "0, 1, 2\n"},
                                   {"Opt1", "Opt1 " + notAValue + "0, 1, 2\n"},
                                   {"Opt1=1x", "Opt1 1x" + notAValue + "0, 1, 2; nearest: 1\n"},
                                   {"PARS_SAHEN=futur", "PARS_SAHEN futur" + notAValue + "present, past\n"}}) {
    const ToolResult result = run({"style", "set", "1", "Opt2=2", pair});
    EXPECT_TRUE(result.err.starts_with("tarvoctl: " + line.substr(0, line.size() - 1))) << result.err;
    EXPECT_EQ(result.status, 2);
  }
  for (const char* pair : {"Opt4=0", "TOpt4=1", "Name=x", "pars_sahen=past", "=1"}) {
    const ToolResult result = run({"style", "set", "1", "Opt2=2", pair});
    EXPECT_NE(result.err.find(notAValue + "Opt1, Opt2, Opt3, TOpt1, TOpt2, TOpt3, TOpt5, PARS_SAHEN, "),
              std::string::npos)
        << result.err;
    EXPECT_EQ(result.status, 2);
  }
  EXPECT_EQ(tree(), before);
}

TEST_F(Verbs, styleSetOnAStyleThatCannotBeEditedChangesNothing) {
  putStyles("root4.plist");
  const auto before = tree();
  EXPECT_EQ(run({"style", "set", "4", "Opt1=1"}).err, told("4", noSuchStyle));
  const ToolResult divider = run({"style", "set", "2", "Opt1=1"});
  EXPECT_EQ(divider.err, told("2", isDividerTold));
  EXPECT_EQ(divider.status, 1);
  EXPECT_EQ(treeButLock(), before);
}

TEST_F(Verbs, styleSetReachesEveryStyleWithoutARememberedChoice) {
  putStyles("no-selection.plist");
  for (const int index : {0, 3}) {
    EXPECT_EQ(run({"style", "set", std::to_string(index), "Opt1=1"}).status, 0);
    EXPECT_EQ(style(index).find("{\"EJ\":{\"Opt1\":1,"), 0U);
  }
}

TEST_F(Verbs, styleSetTellsThatAStyleLacksTheDirection) {
  putStyles("no-je.plist");
  EXPECT_EQ(run({"style", "set", "1", "Opt1=2"}).status, 0);
  const std::string before = style(1);
  const ToolResult refused = run({"style", "set", "1", "Opt1=0", "KATA1=0"});
  EXPECT_EQ(refused.err, told("Alpha", "the style is damaged; it lacks the direction JE; import a style in its place"));
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(style(1), before);
}

TEST_F(Verbs, styleSetLeavesTheDividerAsTheChoice) {
  putStyles("divider-selected.plist");
  EXPECT_EQ(run({"style", "set", "1", "Opt1=2"}).status, 0);
  EXPECT_EQ(run({"styles"}).out, "0  NomalStyle\n1  Alpha\n2  (divider)   MG\n3  Beta        QB\n");
}

}  // namespace
}  // namespace tarvo::test
