// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "tests/console/verbs/verb_test.h"

// The verbs that list styles, and how a style is named.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

using Verbs = VerbTest;

TEST_F(Verbs, stylesListsIndexNameAndTools) {
  putStyles("root4.plist");
  const ToolResult result = run({"styles"});
  EXPECT_EQ(result.out, "0  NomalStyle  MG\n1  Alpha\n2  (divider)\n3  Beta        QB\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
}

TEST_F(Verbs, stylesListsAsJson) {
  putStyles("root4.plist");
  EXPECT_EQ(run({"styles", "--json"}).out, R"([{"divider":false,"index":0,"name":"NomalStyle","tools":["MG"]},)"
                                           R"({"divider":false,"index":1,"name":"Alpha","tools":[]},)"
                                           R"({"divider":true,"index":2,"name":"keyNameSeparator","tools":[]},)"
                                           R"({"divider":false,"index":3,"name":"Beta","tools":["QB"]}])"
                                           "\n");
}

TEST_F(Verbs, stylesOfTheProductAreListedBeforeTheFirstStart) {
  const fs::path seed = root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist";
  fs::copy_file(scenarioFolder() + "/fixtures/two-styles.plist", seed);
  EXPECT_EQ(run({"styles"}).out, "0  One\n1  Two  MG\n");
}

TEST_F(Verbs, nothingToListIsToldAndRefused) {
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"styles"}, std::vector<std::string>{"style", "show", "0"}}) {
    const ToolResult result = run(words);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, told(root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist",
                               "cannot be read; it is not there"));
    EXPECT_EQ(result.status, 1);
  }
}

TEST_F(Verbs, styleShowPrintsTheRecord) {
  putStyles("root4.plist");
  EXPECT_EQ(run({"style", "show", "3"}).out,
            "EJ.Opt1        2\nEJ.Opt2        2\nEJ.Opt3        1\nEJ.TD          b.TRet, a.TRet\n"
            "EJ.UD          u.eud2\nFuture.k       1\nID             3\nJE.FLEX_MODE   x\nJE.PARS_SAHEN  past\n"
            "JE.TD          j2.TRet\nJE.TOpt1       4\nJE.TOpt2       4\nJE.TOpt3       0\nJE.TOpt4       true\n"
            "JE.TOpt5       0\nName           Beta\n");
  EXPECT_EQ(style(1), R"({"EJ":{"Opt1":1,"Opt2":0,"Opt3":0},"ID":1,"JE":{"TOpt1":0,"TOpt2":0,"TOpt3":0,"TOpt4":false,)"
                      R"("TOpt5":0},"Name":"Alpha"})"
                      "\n");
}

TEST_F(Verbs, styleShowOfAMissingStyleIsRefused) {
  putStyles("root4.plist");
  for (const char* word : {"4", "99999999999", "Gamma", "name:Al", "beta"}) {
    const ToolResult result = run({"style", "show", word});
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, told(word, noSuchStyle));
    EXPECT_EQ(result.status, 1);
  }
}

TEST_F(Verbs, aStyleIsNamedByItsIndexItsNameOrAUniqueBeginning) {
  putStyles("root4.plist");
  for (const char* word : {"3", "03", "name:Beta", "Beta", "B", "Be"}) {
    EXPECT_EQ(run({"style", "show", word, "--json"}).out, style(3)) << word;
  }
  EXPECT_EQ(run({"style", "show", "2", "--json"}).out, style(2)) << "the divider can be shown";
}

TEST_F(Verbs, aBeginningOfSeveralNamesIsRefusedAndAWholeNameComesFirst) {
  putStyles("two-words.plist");
  root_.folder().write(std::string("root/Users/taro/") + styleFile,
                       "<plist><dict><key>Style</key><array><dict><key>Name</key><string>Law</string></dict>"
                       "<dict><key>Name</key><string>Lawyer</string></dict><dict><key>Name</key><string>name:x</string>"
                       "</dict><dict><key>Name</key><string>2</string></dict></array></dict></plist>");
  EXPECT_EQ(run({"style", "show", "Law"}).out, "Name  Law\n");
  EXPECT_EQ(run({"style", "show", "Lawy"}).out, "Name  Lawyer\n");
  EXPECT_EQ(run({"style", "show", "name:name:x"}).out, "Name  name:x\n");
  EXPECT_EQ(run({"style", "show", "name:2"}).out, "Name  2\n");
  EXPECT_EQ(run({"style", "show", "2"}).out, "Name  name:x\n");
  const ToolResult result = run({"style", "show", "La"});
  EXPECT_EQ(result.err, told("La",
                             "several styles are meant; 2 are called so or begin so; write more of the name, or "
                             "the index"));
  EXPECT_EQ(result.status, 1);
}

TEST_F(Verbs, aWordThatIsNoWholeNumberAndNoNameIsAUsageError) {
  putStyles("root4.plist");
  const auto before = tree();
  for (const char* word : {"", "+1", "0x1", " 1", "1 ", "1.0", "1e0"}) {
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"style", "show", word}, {"dictionaries", word, "ej"}}) {
      const ToolResult result = run(words);
      EXPECT_EQ(result.err,
                "tarvoctl: N " + std::string(word) +
                    ": not a value for this; allowed: an index, name:NAME, a name or its unique beginning\n");
      EXPECT_EQ(result.status, 2);
    }
    EXPECT_EQ(run({"style", "set", word, "Opt1=1"}).status, 2) << word;
  }
  EXPECT_EQ(run({"style", "show", "--", "-1"}).status, 2);
  EXPECT_EQ(treeButLock(), before);
}

TEST_F(Verbs, listingsOnlyRead) {
  putStyles("root4.plist");
  const auto before = tree();
  run({"styles"});
  run({"style", "show", "0"});
  run({"doctor"});
  EXPECT_EQ(tree(), before);
}

}  // namespace
}  // namespace tarvo::test
