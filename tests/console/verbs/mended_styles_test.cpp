// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "tests/console/verbs/verb_test.h"

// What a load mends in the styles, as every verb that reads them tells it.
namespace tarvo::test {
namespace {

class MendedStyles : public VerbTest {
 protected:
  void removeDictionary(const std::string& name) const {
    ASSERT_TRUE(std::filesystem::remove(root_.folder() / (technical + name)));
  }
  static constexpr const char* gone = ": no longer on this disk, so taken out when its style is shown: ";
};

TEST_F(MendedStyles, areToldByEachVerbThatReadsThem) {
  putStyles("root4.plist");
  removeDictionary("EJ/b.TRet");
  removeDictionary("JE/j1.TRet");
  const std::string expected = told(stylePath(), std::string("English to Japanese") + gone + "b.TRet") +
                               told(stylePath(), std::string("Japanese to English") + gone + "j1.TRet");
  for (const std::vector<std::string>& words : {std::vector<std::string>{"styles"},
                                                {"style", "show", "1"},
                                                {"dictionaries", "1", "ej"},
                                                {"history"},
                                                {"style", "export", "1", root_.folder() / "out.whstyle"},
                                                {"style", "set", "1", "Opt1=2"},
                                                {"style", "set", "1", "Opt1=2"}}) {
    const ToolResult result = run(words);
    EXPECT_EQ(result.err, expected) << words[0] << words.back();
    EXPECT_EQ(result.status, 0);
  }
}

TEST_F(MendedStyles, areNotToldOfAListThatHasNoneOfItsFiles) {
  putStyles("root4.plist");
  std::filesystem::remove_all(root_.folder() / (technical + std::string("EJ")));
  EXPECT_EQ(run({"styles"}).err, "") << "the disk may just be away";
}

TEST_F(MendedStyles, tellOfOptionsThatTheFileLackedUntilTheyAreWritten) {
  putStyles("no-topt2.plist");
  const std::string expected =
      told(stylePath(), "Options that the style file lacked have their defaults: Splitting long sentences");
  EXPECT_EQ(run({"styles"}).err, expected);
  EXPECT_EQ(run({"style", "set", "0", "Opt1=2"}).err, expected);
  EXPECT_EQ(run({"styles"}).err, "");
}

TEST_F(MendedStyles, areNotToldOfTheProductsStyles) {
  std::filesystem::copy_file(scenarioFolder() + "/fixtures/no-topt2.plist",
                             root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
  EXPECT_EQ(run({"styles"}).err, "");
  EXPECT_EQ(run({"style", "set", "0", "Opt1=2"}).err, "");
}

}  // namespace
}  // namespace tarvo::test
