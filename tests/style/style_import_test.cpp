// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_exchange.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_reader.h"
#include "platform/services/plist_file.h"
#include "tests/style/exchange_fixture.h"
#include "tests/support/sample_styles.h"

namespace tarvo::test {
namespace {

TEST_F(StyleExchangeTest, replacesTheRecordUnderTheNameAndTheNumberOfItsPlace) {
  EXPECT_TRUE(import(importedStyle()));
  Dictionary expected = importedStyle();
  expected.set("Name", "Alpha");
  expected.set("ID", 1);
  EXPECT_EQ(record(1), expected);
  EXPECT_EQ(world_.log, Log{"unreachable"});
  EXPECT_EQ(world_.files.writes(), 1) << "one write, one probe";
  Dictionary root = sampleRoot();
  root.array("Style")->at(1) = expected;
  EXPECT_EQ(world_.store.root(), root);
}

TEST_F(StyleExchangeTest, dropsKeysThatTheFileLacks) {
  EXPECT_TRUE(import(importedStyle(), 3, "Beta"));
  EXPECT_FALSE(record(3).contains("Future"));
  EXPECT_FALSE(record(3).dictionary("EJ")->contains("UD"));
  EXPECT_FALSE(record(3).dictionary("JE")->contains("FLEX_MODE"));
  EXPECT_EQ(record(3).dictionary("JE")->find("TD")->array()->size(), 1U);
}

TEST_F(StyleExchangeTest, givesANumberWhateverTheFileHeld) {
  Dictionary style = importedStyle();
  style.set("ID", "7");
  EXPECT_TRUE(import(style, 3, "Beta"));
  EXPECT_EQ(*record(3).find("ID"), PropertyList(3));
  style.remove("ID");
  style.remove("Name");
  EXPECT_TRUE(import(style, 0, "NomalStyle"));
  EXPECT_EQ(*record(0).find("ID"), PropertyList(0));
  EXPECT_EQ(*record(0).string("Name"), "NomalStyle");
}

TEST_F(StyleExchangeTest, refusesWhatIsNoStyle) {
  Dictionary half = importedStyle();
  half.remove("EJ");
  expectRefusal(half);
  half = importedStyle();
  half.remove("JE");
  expectRefusal(half);
  half = importedStyle();
  half.set("EJ", "text");
  expectRefusal(half);
  half.set("EJ", Array{});
  expectRefusal(half);
  expectRefusal(Array{importedStyle()});
  expectRefusal("text");
  expectRefusal(sampleRoot());
  expectRefusal(Dictionary());
}

TEST_F(StyleExchangeTest, refusesWhatCannotBeRead) {
  EXPECT_FALSE(world_.import("/missing.whstyle", 1, "Alpha"));
  EXPECT_EQ(world_.log, Log{importFailed});
  for (const char* bytes : {"", "no property list", "<plist><dict><key>EJ</key></dict></plist>", "bplist00"}) {
    world_.files.put("/in.whstyle", bytes);
    world_.log.clear();
    EXPECT_FALSE(world_.import("/in.whstyle", 1, "Alpha")) << bytes;
    EXPECT_EQ(world_.log, Log{importFailed});
  }
  EXPECT_EQ(world_.store.root(), sampleRoot());
  EXPECT_EQ(world_.files.writes(), 0);
}

TEST_F(StyleExchangeTest, refusesAPlaceWithoutARecord) {
  for (const int index : {-1, 4, 2147483647}) expectRefusal(importedStyle(), index);
}

struct Range {
  const char *direction, *key;
  int highest;
  bool mayBeAbsent;
};
const std::vector<Range> ranges{{"EJ", "Opt1", 2, false},  {"EJ", "Opt2", 2, false},  {"EJ", "Opt3", 2, false},
                                {"JE", "TOpt1", 4, false}, {"JE", "TOpt2", 4, false}, {"JE", "TOpt3", 3, false},
                                {"JE", "TOpt4", 1, true},  {"JE", "TOpt5", 1, true}};

Dictionary withOption(const Range& range, const PropertyList& value) {
  Dictionary style = importedStyle();
  style.dictionary(range.direction)->set(range.key, value);
  return style;
}

TEST_F(StyleExchangeTest, acceptsExactlyTheRangeOfEachOption) {
  for (const Range& range : ranges) {
    for (int value = 0; value <= range.highest; ++value) {
      EXPECT_TRUE(import(withOption(range, value))) << range.key << value;
    }
    for (const int value : {-1, range.highest + 1, 100, -2147483647 - 1}) {
      EXPECT_FALSE(import(withOption(range, value))) << range.key << value;
    }
    EXPECT_FALSE(import(withOption(range, Integer{std::uint64_t{1} << 32, false}))) << "no wrapping around";
    Dictionary style = importedStyle();
    style.dictionary(range.direction)->remove(range.key);
    EXPECT_EQ(import(style), range.mayBeAbsent) << range.key;
  }
}

TEST_F(StyleExchangeTest, looksForEachOptionInItsOwnHalf) {
  Dictionary style = importedStyle();
  style.dictionary("EJ")->remove("Opt1");
  style.dictionary("JE")->set("Opt1", 1);
  style.set("Opt1", 1);
  expectRefusal(style);
}

TEST_F(StyleExchangeTest, takesOptionsInEveryKindThatReadsAsANumberAndKeepsTheKind) {
  for (const PropertyList& value : {PropertyList("2"), PropertyList(true), PropertyList(Real{"2.9"}), PropertyList(""),
                                    PropertyList("x"), PropertyList(" +1 of 3"), PropertyList(Real{"-0.5"})}) {
    ASSERT_TRUE(import(withOption(ranges[0], value)));
    EXPECT_EQ(*record(1).dictionary("EJ")->find("Opt1"), value);
  }
  for (const PropertyList& value : {PropertyList("3"), PropertyList(Real{"3.0"}), PropertyList(Real{"-1"}),
                                    PropertyList("-1"), PropertyList(Array{}), PropertyList(Dictionary()),
                                    PropertyList(Data{}), PropertyList(Date{"2009-01-31T12:00:00Z"})}) {
    EXPECT_FALSE(import(withOption(ranges[0], value)));
  }
}

TEST_F(StyleExchangeTest, takesEverythingElseUnchecked) {
  Dictionary style = importedStyle();
  Array many;
  for (int i = 0; i < 20; ++i) many.emplace_back("d" + std::to_string(i) + ".TRet");
  style.dictionary("EJ")->set("TD", many);
  style.dictionary("EJ")->set("TOpt1", 99);
  style.dictionary("JE")->set("PARS_SAHEN", "nonsense");
  style.dictionary("JE")->set("number", 17);
  style.set("Whatever", Array{Data{std::byte{0}}, Date{"2009-01-31T12:00:00Z"}, Real{"1.50"}});
  ASSERT_TRUE(import(style));
  style.set("Name", "Alpha");
  style.set("ID", 1);
  EXPECT_EQ(record(1), style);
}

TEST_F(StyleExchangeTest, leavesAnAbsentOptionAbsent) {
  Dictionary style = importedStyle();
  style.dictionary("JE")->remove("TOpt4");
  style.dictionary("JE")->remove("TOpt5");
  ASSERT_TRUE(import(style));
  EXPECT_FALSE(record(1).dictionary("JE")->contains("TOpt4"));
  EXPECT_FALSE(record(1).dictionary("JE")->contains("TOpt5"));
}

PropertyList nested(int levels) {
  PropertyList value = true;
  for (int level = 1; level < levels; ++level) value = Array{value};
  return value;
}

TEST_F(StyleExchangeTest, refusesListsWithinListsThatTheStyleFileCouldNotHold) {
  Dictionary style = importedStyle();
  constexpr int deepest = plistMaximumDepth - 3;  // the root, "Style" and the record stand above it
  style.set("Deep", nested(deepest + 1));
  expectRefusal(style);
  style.set("Deep", nested(deepest));
  EXPECT_TRUE(import(style));
  EXPECT_TRUE(readPropertyList(world_.files.bytes("/styles.plist"))) << "the style file can be read back";
}

TEST_F(StyleExchangeTest, refusesAStyleWithWhichTheStyleFileCouldNotBeReadAgain) {
  Dictionary style = importedStyle();
  style.set("Large", std::string(std::size_t{40} << 20, 'x'));
  ASSERT_TRUE(import(style, 1));
  const Dictionary before = world_.store.root();
  EXPECT_FALSE(import(style, 3, "Beta"));
  EXPECT_EQ(world_.log, Log{importFailed});
  EXPECT_EQ(world_.panels.told.back(), "/styles.plist: Failure.write; Cause.overLimit");
  EXPECT_EQ(world_.store.root(), before);
  EXPECT_TRUE(import(style, 1)) << "in its own place there is room for it";
  EXPECT_LE(world_.files.bytes("/styles.plist").size(), largestListFile);
}

TEST_F(StyleExchangeTest, leavesTheStyleFileWhereTheStylesAreTooLargeToBeReadAgain) {
  Dictionary style = record(1);
  style.set("Large", std::string(std::size_t{65} << 20, 'x'));
  const std::string before = world_.files.bytes("/styles.plist");
  world_.store.setStyle(1, style);
  EXPECT_EQ(world_.store.unsaved()->cause, Reason::overLimit);
  EXPECT_EQ(world_.files.bytes("/styles.plist"), before);
}

TEST_F(StyleExchangeTest, registersWhatWasImportedAndNothingThatWasRefused) {
  world_.engine.online = true;
  EXPECT_FALSE(import(Dictionary()));
  EXPECT_EQ(world_.log, Log{importFailed});
  EXPECT_TRUE(import(importedStyle()));
  EXPECT_EQ(world_.log, (Log{"reachable", "register 4"}));
  EXPECT_EQ(*world_.engine.registered[1].dictionary()->string("K"), "v");
}

TEST_F(StyleExchangeTest, keepsAnImportThatCouldNotBeSaved) {
  world_.files.refuse(MemoryFiles::Operation::write);
  EXPECT_TRUE(import(importedStyle()));
  EXPECT_EQ(*record(1).string("K"), "v");
  EXPECT_FALSE(world_.store.isSaved());
}

TEST_F(StyleExchangeTest, asksForOneStyleFile) {
  EXPECT_EQ(world_.exchange.chooseImportFile(), std::nullopt);
  ASSERT_EQ(world_.panels.opens.size(), 1U);
  EXPECT_EQ(world_.panels.opens[0].title, "Select Import Style File");
  EXPECT_EQ(world_.panels.opens[0].types, std::vector<std::string>{"whstyle"});
  EXPECT_FALSE(world_.panels.opens[0].foldersOnly);
  world_.panels.paths = {"/product/Users/taro/x.whstyle", "/media/y.whstyle"};
  EXPECT_EQ(world_.exchange.chooseImportFile(), DiskPath("/product/Users/taro/x.whstyle"));
  EXPECT_EQ(world_.exchange.chooseImportFile(), DiskPath("/media/y.whstyle"));
}

}  // namespace
}  // namespace tarvo::test
