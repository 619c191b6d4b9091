// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/option_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "platform/services/texts.h"

namespace tarvo {
namespace {

// What the tags -1 to 6 store, in this order.
struct Mapping {
  const char* key;
  std::vector<const char*> values;
};

const std::vector<const char*> oneOnlyForTagOne{"0", "0", "1", "0", "0", "0", "0", "0"};
const std::vector<const char*> zeroOnlyForTagZero{"1", "0", "1", "1", "1", "1", "1", "1"};

std::vector<const char*> onlyForTagOne(const char* value, const char* otherwise) {
  return {otherwise, otherwise, value, otherwise, otherwise, otherwise, otherwise, otherwise};
}
std::vector<const char*> onlyForTagZero(const char* value, const char* otherwise) {
  return {otherwise, value, otherwise, otherwise, otherwise, otherwise, otherwise, otherwise};
}

const DetailOption* detailOption(std::string_view key) {
  const auto found = std::ranges::find(detailOptions(), key, &DetailOption::key);
  return found != detailOptions().end() ? &*found : nullptr;
}

const std::vector<Mapping> mappings{
    {"PARS_SAHEN", onlyForTagOne("past", "present")},
    {"number", oneOnlyForTagOne},
    {"maru_num", oneOnlyForTagOne},
    {"roma_num", oneOnlyForTagOne},
    {"alphabet", oneOnlyForTagOne},
    {"katakana", oneOnlyForTagOne},
    {"kigou", oneOnlyForTagOne},
    {"KATA1", zeroOnlyForTagZero},
    {"KATA2", zeroOnlyForTagZero},
    {"KATA3", oneOnlyForTagOne},
    {"CHOUON_CNV", zeroOnlyForTagZero},
    {"NAKATEN", zeroOnlyForTagZero},
    {"EQUAL", oneOnlyForTagOne},
    {"SPACE", oneOnlyForTagOne},
    {"TAIL_CHOUON", zeroOnlyForTagZero},
    {"CHOUON_IN_KANA", zeroOnlyForTagZero},
    {"KIGOU_CNV", oneOnlyForTagOne},
    {"HandleInputEMailPrefixes", zeroOnlyForTagZero},
    {"GENE_LIST", {"imperative", "imperative", "declarative", "gerund", "toinf", "3sp", "imperative", "imperative"}},
    {"TRAN_NO_SUBJ", {"human", "not_human", "passive", "human", "imperative", "3sp", "human", "human"}},
    {"GENE_ARTCL", {"Default", "the", "a", "Null", "Default", "Default", "Default", "Default"}},
    {"TRAN_ABBR", onlyForTagOne("no", "yes")},
    {"GENE_IMP", onlyForTagOne("please", "do")},
    {"IMP_SUBJ", {"should", "must", "should", "asfor", "should", "should", "should", "should"}},
    {"ENGM_COMPN", onlyForTagOne("hyphen", "space")},
    {"KATA_ROMAN", onlyForTagZero("ON", "OFF")},
    {"TRAN_CST", onlyForTagOne("Null", "make")},
    {"TRAN_SAHEN", onlyForTagOne("noun", "verb")},
    {"TRAN_RENGO", onlyForTagOne("verb", "noun")},
    {"TRAN_TEIRU_PG", onlyForTagOne("present", "progressive")},
    {"TRAN_TEIRU_PF", onlyForTagOne("present", "perfective")},
    {"TRAN_SARETA", onlyForTagOne("present", "past")},
    {"GENE_NADONO", {"such_as", "such_as", "kakko", "example", "e.g.", "that_is", "instance", "such_as"}},
    {"ENGM_TITLE_CAP", {"head", "all", "head", "top", "head", "head", "head", "head"}},
    {"TRAN_NIHA", onlyForTagOne("ing", "how")},
    {"TRAN_SAHEN_TITLE", onlyForTagOne("ing", "noun")},
};

class EachDetailOption : public testing::TestWithParam<std::size_t> {};

TEST_P(EachDetailOption, storesTheTextOfItsTagAndOneTextForEveryOtherTag) {
  const Mapping& mapping = mappings[GetParam()];
  const DetailOption& option = detailOptions()[GetParam()];
  ASSERT_EQ(option.key, mapping.key);
  for (int tag = -1; tag <= 6; ++tag) {
    EXPECT_EQ(option.valueForTag(tag), mapping.values[static_cast<std::size_t>(tag + 1)]) << mapping.key << " " << tag;
  }
  EXPECT_EQ(option.valueForTag(100000), option.valueForTag(-1));
  EXPECT_EQ(option.valueForTag(-100000), option.valueForTag(-1));
}

TEST_P(EachDetailOption, findsTheFirstTagOfEachTextItStores) {
  const DetailOption& option = detailOptions()[GetParam()];
  for (int tag = 0; tag < option.valueCount; ++tag) {
    const int found = option.tagForValue(option.valueForTag(tag));
    EXPECT_EQ(option.valueForTag(found), option.valueForTag(tag));
    EXPECT_LE(found, tag);
  }
  EXPECT_EQ(option.tagForValue("no such text"), -1);
  EXPECT_EQ(option.tagForValue(""), -1);
}

INSTANTIATE_TEST_SUITE_P(All, EachDetailOption, testing::Range<std::size_t>(0, 36),
                         [](const auto& test) { return std::string(detailOptions()[test.param].key); });

TEST(OptionTable, has36DetailOptionsAndNoneThatNoPopUpEdits) {
  EXPECT_EQ(detailOptions().size(), 36U);
  EXPECT_EQ(mappings.size(), 36U);
  EXPECT_EQ(detailOption("META_HEADER_FIX"), nullptr);
  EXPECT_EQ(detailOption("FLEX_MODE"), nullptr);
  EXPECT_EQ(detailOption("handleinputemailprefixes"), nullptr);
  EXPECT_EQ(detailOption("HandleInputEMailPrefixes")->outlet, "handleInputEmailPrefixesPopup");
}

TEST(OptionTable, givesEachDetailOptionAGroupAndEachGroupOptions) {
  std::set<std::string_view> used;
  for (const DetailOption& option : detailOptions()) used.insert(option.heading);
  EXPECT_EQ(used, std::set<std::string_view>(detailHeadings().begin(), detailHeadings().end()));
}

TEST(OptionTable, knowsTheOptionOfEachPopUpTag) {
  struct Expected {
    int tag;
    const char *direction, *key;
  };
  for (const Expected& expected : std::vector<Expected>{{0, "EJ", "Opt1"},
                                                        {1, "EJ", "Opt2"},
                                                        {2, "EJ", "Opt3"},
                                                        {3, "JE", "TOpt1"},
                                                        {4, "JE", "TOpt2"},
                                                        {5, "JE", "TOpt3"},
                                                        {7, "JE", "TOpt5"}}) {
    const IndexOption* option = indexOptionForTag(expected.tag);
    ASSERT_NE(option, nullptr) << expected.tag;
    EXPECT_EQ(halfKey(option->direction), expected.direction);
    EXPECT_EQ(option->key, expected.key);
  }
  for (const int tag : {-1, 6, 8, 100}) EXPECT_EQ(indexOptionForTag(tag), nullptr) << tag;
}

TEST(OptionTable, offersTheValuesAsItemsWithTagsFromZeroAndTheStoredTextWithoutATranslation) {
  const std::vector<PopUpButton::Item> items = itemsFor(*detailOption("GENE_NADONO"), Texts());
  const std::vector<std::string> expected{"such_as", "kakko", "example", "e.g.", "that_is", "instance"};
  ASSERT_EQ(items.size(), expected.size());
  for (std::size_t i = 0; i < items.size(); ++i) {
    EXPECT_EQ(items[i].title, expected[i]);
    EXPECT_EQ(items[i].tag, static_cast<int>(i));
    EXPECT_FALSE(items[i].separator);
  }
}

TEST(OptionTable, titlesItemsByTheTranslation) {
  Texts texts;
  Dictionary table;
  table.set("PARS_SAHEN.past", "過去形");
  table.set("TOpt3.3", "Fourth");
  texts.overlay(table);
  EXPECT_EQ(itemsFor(*detailOption("PARS_SAHEN"), texts)[1].title, "過去形");
  EXPECT_EQ(itemsFor(*detailOption("PARS_SAHEN"), texts)[0].title, "present");
  const std::vector<PopUpButton::Item> items = itemsFor(*indexOptionForTag(5), texts);
  ASSERT_EQ(items.size(), 4U);
  EXPECT_EQ(items[3].title, "Fourth");
  EXPECT_EQ(items[0].title, "TOpt3.0");
}

TEST(OptionTable, keepsTheOptionThatNoControlEditsBehindTheOthers) {
  ASSERT_EQ(storedOptions().size(), indexOptions().size() + 1);
  EXPECT_EQ(storedOptions().back().key, "TOpt4");
  EXPECT_EQ(storedOptions().back().outlet, "");
}

TEST(OptionTable, offersAsManyItemsAsAnImportAccepts) {
  const std::vector<int> counts{3, 3, 3, 5, 5, 4, 2};
  ASSERT_EQ(indexOptions().size(), counts.size());
  for (std::size_t i = 0; i < counts.size(); ++i) EXPECT_EQ(indexOptions()[i].itemCount, counts[i]) << i;
}

}  // namespace
}  // namespace tarvo
