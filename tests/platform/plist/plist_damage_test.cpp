// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/plist/plist_findings.h"
#include "platform/plist/plist_numbers.h"
#include "platform/plist/plist_reader.h"

// What is told of a list that is damaged, or that others could not read.
namespace tarvo {
namespace {

PlistDamage damageOf(const std::string& bytes) {
  const auto list = parsePropertyList(bytes);
  EXPECT_FALSE(list) << bytes;
  return list ? PlistDamage{} : list.error();
}

TEST(PlistDamage, isToldByLineAndColumnInCharacters) {
  const struct {
    const char* bytes;
    PlistDamage damage;
  } rows[] = {{"<plist>\n<dict>\n\t<key>a</key>\n\t<integer>x</integer>\n</dict>\n</plist>\n", {4, 12}},
              {"<plist>\n<array>辞書</array></plist>", {2, 8}},
              {"<plist>\n<string>辞書</strong></plist>", {2, 13}},
              {"<plist>\r\n<set/></plist>", {2, 1}},
              {"<plist><dict><key>a</key></dict></plist>", {1, 26}},
              {"no list", {0, 0}},
              {"<plist><string>a</string>\n", {2, 1}},
              {"<plist></plist>", {1, 16}}};
  for (const auto& row : rows) {
    EXPECT_EQ(damageOf(row.bytes).line, row.damage.line) << row.bytes;
    EXPECT_EQ(damageOf(row.bytes).column, row.damage.column) << row.bytes;
  }
}

TEST(PlistDamage, hasNoPlaceInTheBinaryForm) { EXPECT_EQ(damageOf("bplist00"), PlistDamage{}); }

TEST(SoundDate, isADayOfTheYears1To9999WithATimeOrWithout) {
  for (const char* date : {"2009-01-31T12:00:00Z", "0001-01-01T00:00:00Z", "9999-12-31T23:59:59Z", "2008-02-29Z",
                           "2009-01-31T12Z", "2009-01-31T12:30Z"}) {
    EXPECT_TRUE(isSoundDate(date)) << date;
  }
  for (const char* date : {"",
                           "Z",
                           "----",
                           "2009Z",
                           "2009-01Z",
                           "2009-01-31",
                           "2009-01-31T12:00:00",
                           "0000-01-01T00:00:00Z",
                           "10000-01-01T00:00:00Z",
                           "-0044-03-15T12:00:00Z",
                           "2009-02-29Z",
                           "2009-13-01Z",
                           "2009-00-01Z",
                           "2009-01-32Z",
                           "2009-01-31T24:00:00Z",
                           "2009-01-31T12:60:00Z",
                           "2009-01-31T23:59:60Z",
                           "2009-01-31T12:00:00.5Z",
                           "2009-01-31T12:00:00+09:00",
                           "2009-01-31T12:00:00Z ",
                           "2009-01-31t12:00:00z",
                           "2009-01-31TZ",
                           "20090131Z"}) {
    EXPECT_FALSE(isSoundDate(date)) << date;
  }
}

TEST(PlistFindings, nameTheWayToEachDateThatIsNone) {
  Dictionary inner, root;
  inner.set("when", Date{"----"});
  root.set("EJ", inner);
  root.set("days", Array{Date{"2009-01-31T12:00:00Z"}, Date{"12009-01-31T12:00:00Z"}, "no date"});
  const std::vector<PlistFinding> expected{{"EJ/when", "----"}, {"days/1", "12009-01-31T12:00:00Z"}};
  EXPECT_EQ(unsoundDates(root), expected);
  EXPECT_EQ(unsoundDates(Array{root}),
            (std::vector<PlistFinding>{{"0/EJ/when", "----"}, {"0/days/1", "12009-01-31T12:00:00Z"}}));
  EXPECT_TRUE(unsoundDates(Dictionary()).empty());
}

TEST(PlistFindings, nameTextsAndKeysThatAFileCannotHold) {
  Dictionary root;
  root.set("TD", Array{"a.TRet", "b\x01.TRet", "\xFF"});
  root.set("k\x02", true);
  EXPECT_EQ(unkeepableTexts(root),
            (std::vector<PlistFinding>{{"TD/1", "b\x01.TRet"}, {"TD/2", "\xFF"}, {"k\x02", "k\x02"}}));
}

}  // namespace
}  // namespace tarvo
