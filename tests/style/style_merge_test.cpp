// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_merge.h"

#include <gtest/gtest.h>

#include "style/style_keys.h"
#include "style/style_records.h"

namespace tarvo {
namespace {

Dictionary half(int option, Array list = {}) {
  Dictionary values;
  values.set("Opt1", option);
  values.set(keyNameTD, std::move(list));
  return values;
}

PropertyList style(const std::string& name, int id, int option = 0, Array list = {}) {
  Dictionary record;
  record.set(keyNameName, name);
  record.set(keyNameID, id);
  record.set(keyNameEJ, half(option, std::move(list)));
  return record;
}

// On this disk lies every dictionary but "Away", and "Medical" was inserted.
const MergeKnowledge knowledge{
    .isOnDisk = [](Direction, const std::string& name) { return name != "Away"; },
    .isInserted = [](Direction, const std::string& name) { return name == "Medical"; },
    .isDivider = [](const Dictionary& record) { return recordName(record) == "-"; },
};

MergedStyles merge(const Array& base, const Array& mine, const Array& theirs, bool mineIsNewer = false) {
  return mergeStyles({base, mine, theirs, mineIsNewer}, knowledge);
}

const Array base{style("Standard", 0), style("Patents", 1), style("Letters", 2)};

TEST(StyleMerge, keepsWhatEachSideChangedInDifferentStyles) {
  const Array mine{style("Standard", 0), style("Patents", 1, 2), style("Letters", 2)};
  const Array theirs{style("Standard", 0), style("Patents", 1), style("Letters", 2, 1)};
  const MergedStyles merged = merge(base, mine, theirs);
  EXPECT_EQ(merged.styles, (Array{style("Standard", 0), style("Patents", 1, 2), style("Letters", 2, 1)}));
  EXPECT_TRUE(merged.notes.empty());
}

TEST(StyleMerge, keepsWhatEachSideChangedInOneStyle) {
  const Array mine{style("Standard", 0), style("Patents", 1, 2), style("Letters", 2)};
  const Array theirs{style("Standard", 0), style("Contracts", 1, 0, {"Physics"}), style("Letters", 2)};
  const MergedStyles merged = merge(base, mine, theirs);
  EXPECT_EQ(merged.styles, (Array{style("Standard", 0), style("Contracts", 1, 2, {"Physics"}), style("Letters", 2)}));
  EXPECT_TRUE(merged.notes.empty());
}

TEST(StyleMerge, keepsMineWhereBothChangedOneValueAndTellsTheOther) {
  const Array mine{style("Standard", 0, 1), style("Patents", 1), style("Letters", 2)};
  const Array theirs{style("Standard", 0, 2), style("Patents", 1), style("Letters", 2)};
  const MergedStyles merged = merge(base, mine, theirs);
  EXPECT_EQ(merged.styles, mine);
  EXPECT_EQ(merged.notes, (std::vector<MergeNote>{{MergeNote::Kind::otherValue, "Standard",
                                                   Direction::englishToJapanese, "Opt1", PropertyList(2)}}));
}

TEST(StyleMerge, appendsNewStylesMineFirstAndNumbersANameThatBothGave) {
  Array mine = base, theirs = base;
  mine.push_back(style("News", 3, 1));
  theirs.push_back(style("news", 3, 2));
  const MergedStyles merged = merge(base, mine, theirs);
  ASSERT_EQ(merged.styles.size(), 5U);
  EXPECT_EQ(merged.styles[3], style("News", 3, 1));
  EXPECT_EQ(merged.styles[4], style("news 2", 4, 2));
  EXPECT_EQ(merged.notes,
            (std::vector<MergeNote>{{MergeNote::Kind::renamed, "news 2", std::nullopt, "news", std::nullopt}}));
}

TEST(StyleMerge, takesOnceWhatCameToBothSides) {
  Array mine = base, theirs = base;
  mine.push_back(style("News", 3));
  theirs.push_back(style("Other", 3));
  theirs.push_back(style("News", 4));
  const MergedStyles merged = merge(base, mine, theirs);
  ASSERT_EQ(merged.styles.size(), 5U);
  EXPECT_EQ(recordName(merged.styles[3]), "News");
  EXPECT_EQ(merged.styles[4], style("Other", 4));
}

TEST(StyleMerge, removesWhatOneSideRemovedAndTheOtherLeft) {
  const Array mine{style("Standard", 0), style("Letters", 2)};
  Array theirs = base;
  theirs[0] = style("Standard", 0, 1);
  const MergedStyles merged = merge(base, mine, theirs);
  EXPECT_EQ(merged.styles, (Array{style("Standard", 0, 1), style("Letters", 2)}));
  EXPECT_EQ(merged.placesOfMine, (std::vector<std::optional<std::size_t>>{0, 1}));
}

TEST(StyleMerge, keepsAndTellsWhatOneSideRemovedAndTheOtherChanged) {
  const Array mine{style("Standard", 0), style("Patents", 1, 2), style("Letters", 2)};
  const Array theirs{style("Standard", 0), style("Letters", 2)};
  for (const MergedStyles& merged : {merge(base, mine, theirs), merge(base, theirs, mine)}) {
    EXPECT_EQ(merged.styles, mine);
    EXPECT_EQ(merged.notes,
              (std::vector<MergeNote>{{MergeNote::Kind::kept, "Patents", std::nullopt, "", std::nullopt}}));
  }
}

TEST(StyleMerge, followsTheMovesOfTheNewerSetAndKeepsTheStandardStyleInItsPlace) {
  const Array four{style("Standard", 0), style("A", 1), style("B", 2), style("C", 3)};
  const Array moved{four[0], four[3], four[1], four[2]};
  Array other{four[2], four[0], four[1], four[3]};
  other[2] = style("A", 1, 1);
  const MergedStyles merged = merge(four, moved, other, true);
  EXPECT_EQ(merged.styles, (Array{four[0], four[3], style("A", 1, 1), four[2]}));
  EXPECT_EQ(merged.placesOfMine, (std::vector<std::optional<std::size_t>>{0, 1, 2, 3}));
  EXPECT_EQ(merge(four, moved, other, false).styles, (Array{four[0], four[2], style("A", 1, 1), four[3]}));
}

TEST(StyleMerge, takesARenameAtItsPlaceForARename) {
  const Array mine{style("Standard", 0), style("Contracts", 1), style("Letters", 2)};
  const Array theirs{style("Standard", 0), style("Patents", 1, 2), style("Letters", 2, 1)};
  EXPECT_EQ(merge(base, mine, theirs).styles,
            (Array{style("Standard", 0), style("Contracts", 1, 2), style("Letters", 2, 1)}));
}

TEST(StyleMerge, numbersANameThatARenameAndANewStyleShare) {
  Array mine = base, theirs = base;
  mine[1] = style("News", 1);
  theirs.push_back(style("News", 3, 1));
  const MergedStyles merged = merge(base, mine, theirs);
  EXPECT_EQ(merged.styles, (Array{style("Standard", 0), style("News", 1), style("Letters", 2), style("News 2", 3, 1)}));
}

TEST(StyleMerge, aMachineWithoutTheDictionariesTakesNothingFromTheSharedLists) {
  const Array shared{style("Standard", 0, 0, {"Physics", "Away"})};
  const Array mine{style("Standard", 0, 1, {"Medical", "Physics"})};
  EXPECT_EQ(merge(shared, mine, shared).styles, (Array{style("Standard", 0, 1, {"Physics", "Away"})}));
  const Array theirs{style("Standard", 0, 0, {"Chemistry", "Physics", "Away"})};
  const MergedStyles merged = merge(shared, mine, theirs);
  EXPECT_EQ(merged.styles, (Array{style("Standard", 0, 1, {"Chemistry", "Physics", "Away"})}));
  EXPECT_TRUE(merged.notes.empty());
}

TEST(StyleMerge, aListThatWasReallyChangedStays) {
  const Array shared{style("Standard", 0, 0, {"Physics", "Chemistry"})};
  const Array mine{style("Standard", 0, 0, {"Chemistry", "Physics"})};
  const Array theirs{style("Standard", 0, 2, {"Physics", "Chemistry"})};
  EXPECT_EQ(merge(shared, mine, theirs).styles, (Array{style("Standard", 0, 2, {"Chemistry", "Physics"})}));
}

TEST(StyleMerge, dividersShareTheirName) {
  const Array divided{style("Standard", 0), style("-", 1), style("A", 2)};
  Array mine = divided, theirs = divided;
  mine.push_back(style("-", 3));
  mine.push_back(style("B", 4));
  theirs[2] = style("A", 2, 1);
  const MergedStyles merged = merge(divided, mine, theirs);
  EXPECT_EQ(merged.styles,
            (Array{style("Standard", 0), style("-", 1), style("A", 2, 1), style("-", 3), style("B", 4)}));
}

TEST(StyleMerge, keepsUnknownKeysAndWhatIsNoRecord) {
  Array mine = base, theirs = base;
  mine[1].dictionary()->set("Colour", "red");
  theirs[1].dictionary()->set("Weight", 3);
  theirs.emplace_back("no record");
  const MergedStyles merged = merge(base, mine, theirs);
  ASSERT_EQ(merged.styles.size(), 4U);
  EXPECT_EQ(*merged.styles[1].dictionary()->string("Colour"), "red");
  EXPECT_EQ(merged.styles[1].dictionary()->integerValue("Weight"), 3);
  EXPECT_EQ(merged.styles[3], PropertyList("no record"));
}

TEST(StyleMerge, isOfUseWithoutAnyBase) {
  const Array mine{style("Standard", 0, 1), style("A", 1)}, theirs{style("Standard", 0, 1), style("B", 1)};
  const MergedStyles merged = merge({}, mine, theirs);
  EXPECT_EQ(merged.styles, (Array{style("Standard", 0, 1), style("A", 1), style("B", 2)}));
}

TEST(StyleMerge, tellsWhatTheOtherSideRemovedOfARecordThatBothChanged) {
  const Array theirs{style("Standard", 0), PropertyList(Dictionary()), style("Letters", 2)};
  Array mine = base;
  mine[1] = style("Patents", 1, 2);
  const MergedStyles merged = merge(base, mine, theirs);
  EXPECT_EQ(recordName(merged.styles[1]), "");
  ASSERT_EQ(merged.notes.size(), 1U);
  EXPECT_EQ(merged.notes[0].key, "EJ");
  EXPECT_EQ(merged.notes[0].other, std::nullopt);
}

TEST(StyleMerge, aListInWhichTheDiskSpellsANameOtherwiseIsNotChanged) {
  const Array shared{style("Standard", 0, 0, {"physics", "Chemistry"})};
  const Array mine{style("Standard", 0, 1, {"Physics", "Chemistry"})};
  const Array theirs{style("Standard", 0, 0, {"Chemistry"})};
  const MergedStyles merged = merge(shared, mine, theirs);
  EXPECT_EQ(merged.styles, (Array{style("Standard", 0, 1, {"Chemistry"})}));
  EXPECT_TRUE(merged.notes.empty());
}

}  // namespace
}  // namespace tarvo
