// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_naming.h"

#include <gtest/gtest.h>

#include "tests/style/naming_fixture.h"
#include "tests/support/sample_styles.h"

namespace tarvo::test {
namespace {

TEST_F(StyleNamingTest, refusesANameOfBlanksAndEmptiesTheField) {
  for (const char* blanks : {"", " ", " \t\r\n", "\u3000\u00A0\u2028"}) {
    rename(3, blanks);
    EXPECT_EQ(field(), "");
    expectRefusal("alert NoStyleNameHeader / NoStyleNameMessage");
    naming_.snCancelButtonAction();
  }
}

TEST_F(StyleNamingTest, refusesTakenNamesInAnyLetterCase) {
  for (const char* name : {"nomalSTYLE", "BETA", "  beta\n", "KEYNAMEseparator", "keyNameSeparator"}) {
    rename(1, name);
    expectRefusal(taken_);
    EXPECT_EQ(field(), std::string(name) == "  beta\n" ? "beta" : name);
    naming_.snCancelButtonAction();
  }
}

TEST_F(StyleNamingTest, acceptsWhatDiffersByMoreThanLetterCase) {
  const std::string longName = "a/b:c.d" + std::string(500, 'x');
  for (const std::string& name : {std::string("ALPHA"), std::string("Alpha"), std::string("Ｂｅｔａ"),
                                  std::string("Béta"), std::string("Beta\u200B"), longName}) {
    rename(1, name);
    EXPECT_EQ(nameOf(1), name);
    EXPECT_EQ(pane_.stylePopup.items()[1].title, name);
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(flags_.gMenuControllFlag);
  }
}

TEST_F(StyleNamingTest, keepsBlanksInsideTheName) {
  rename(1, " New  Name \n");
  EXPECT_EQ(nameOf(1), "New  Name");
  EXPECT_EQ(pane_.stylePopup.items()[1].title, "New  Name");
}

TEST_F(StyleNamingTest, comparesWithEveryStyleButTheGivenOne) {
  const Dictionary root = sampleRoot();
  const Array* styles = root.array("Style");
  EXPECT_TRUE(naming_.checkStyleName(styles, 1, "alpha"));
  EXPECT_FALSE(naming_.checkStyleName(styles, 0, "alpha"));
  EXPECT_FALSE(naming_.checkStyleName(styles, -1, "alpha"));
  EXPECT_FALSE(naming_.checkStyleName(styles, 0, "nomalstyle")) << "the standard name is no style's own";
  EXPECT_TRUE(naming_.checkStyleName(nullptr, 0, "x"));
  EXPECT_FALSE(naming_.checkStyleName(nullptr, 0, "NOMALSTYLE"));
}

TEST_F(StyleNamingTest, countsARecordWithoutANameAsNamedByNothing) {
  const Array styles{Dictionary(), "no record"};
  EXPECT_TRUE(naming_.checkStyleName(&styles, -1, "x"));
  EXPECT_FALSE(naming_.checkStyleName(&styles, -1, ""));
}

}  // namespace
}  // namespace tarvo::test
