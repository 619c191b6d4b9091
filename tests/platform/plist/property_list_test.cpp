// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/property_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

namespace tarvo {
namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

struct Conversion {
  PropertyList value;
  int integer;
  bool boolean, hasInteger;
};

TEST(PropertyList, convertsToAnIntegerAndABoolean) {
  const std::vector<Conversion> rows{
      {true, 1, true, true},
      {false, 0, false, true},
      {7, 7, true, true},
      {-7, -7, true, true},
      {Integer{largest, false}, largest, true, true},
      {Integer{2147483648U, true}, smallest, true, true},
      {Integer{4294967296U, false}, largest, true, true},
      {Integer{std::numeric_limits<std::uint64_t>::max(), true}, smallest, true, true},
      {Real{"2.99"}, 2, true, true},
      {Real{"-2.99"}, -2, true, true},
      {Real{"-0.5"}, 0, false, true},
      {Real{"+1.5"}, 1, true, true},
      {Real{"1e300"}, largest, true, true},
      {Real{"-1e9999"}, smallest, true, true},
      {Real{"1e-9999"}, 0, false, true},
      {Real{"-infinity"}, smallest, true, true},
      {Real{"nan"}, 0, false, true},
      {Real{"text"}, 0, false, true},
      {"12", 12, true, true},
      {" \t-12abc", -12, true, true},
      {"+3", 3, true, true},
      {"99999999999", largest, true, true},
      {"", 0, false, true},
      {"abc", 0, false, true},
      {"yes", 0, true, true},
      {"True", 0, true, true},
      {"no", 0, false, true},
      {Date{"2009-01-31T12:00:00Z"}, 0, false, false},
      {Data{std::byte{1}}, 0, false, false},
      {Array{PropertyList(1)}, 0, false, false},
      {Dictionary{}, 0, false, false},
  };
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].value.integerValue(), rows[i].integer) << "row " << i;
    EXPECT_EQ(rows[i].value.booleanValue(), rows[i].boolean) << "row " << i;
    EXPECT_EQ(rows[i].value.hasIntegerValue(), rows[i].hasInteger) << "row " << i;
  }
}

TEST(PropertyList, givesItsContentOnlyAsTheKindItIs) {
  const PropertyList text("1"), flag(true), list(Array{}), nothing;
  EXPECT_EQ(*text.string(), "1");
  EXPECT_EQ(text.boolean(), nullptr);
  EXPECT_EQ(flag.string(), nullptr);
  EXPECT_TRUE(*flag.boolean());
  EXPECT_EQ(list.dictionary(), nullptr);
  EXPECT_NE(list.array(), nullptr);
  EXPECT_NE(nothing.dictionary(), nullptr);
}

TEST(PropertyList, tellsKindsApart) {
  const Array different{true, 1, Real{"1"}, Date{"1"}, "1", Data{std::byte{'1'}}, Array{}, Dictionary{}};
  for (std::size_t i = 0; i < different.size(); ++i) {
    for (std::size_t k = 0; k < different.size(); ++k) EXPECT_EQ(different[i] == different[k], i == k) << i << ' ' << k;
  }
}

TEST(PropertyList, copiesAreDeepAndIndependent) {
  Dictionary inner;
  inner.set("a", 1);
  PropertyList first(Array{PropertyList(inner)});
  PropertyList second = first;
  (*second.array())[0].dictionary()->set("a", 2);
  EXPECT_EQ((*first.array())[0].dictionary()->integerValue("a"), 1);
  EXPECT_NE(first, second);
}

TEST(Integer, keepsTheWholeRangeOfSixtyFourBits) {
  EXPECT_EQ(Integer::of(std::numeric_limits<std::int64_t>::min()), (Integer{std::uint64_t{1} << 63, true}));
  EXPECT_EQ(Integer::of(std::numeric_limits<std::int64_t>::max()), (Integer{(std::uint64_t{1} << 63) - 1, false}));
  EXPECT_EQ(Integer::of(0), (Integer{0, false}));
  EXPECT_EQ(Integer::of(-1), (Integer{1, true}));
}

TEST(Dictionary, keepsKeysAscendingByTheirBytes) {
  Dictionary dictionary;
  for (const char* key : {"b", "辞書", "a", "B", "", "ab", "\U0001F600", "￥"}) dictionary.set(key, key);
  std::vector<std::string> keys;
  for (const auto& entry : dictionary.entries()) keys.push_back(entry.first);
  EXPECT_EQ(keys, (std::vector<std::string>{"", "B", "a", "ab", "b", "辞書", "￥", "\U0001F600"}));
  for (const std::string& key : keys) EXPECT_EQ(*dictionary.string(key), key);
}

TEST(Dictionary, setReplacesAndRemoveTakesOut) {
  Dictionary dictionary;
  dictionary.set("a", 1);
  dictionary.set("a", "two");
  EXPECT_EQ(dictionary.size(), 1U);
  EXPECT_EQ(*dictionary.string("a"), "two");
  EXPECT_FALSE(dictionary.remove("b"));
  EXPECT_TRUE(dictionary.remove("a"));
  EXPECT_TRUE(dictionary.empty());
  EXPECT_FALSE(dictionary.contains("a"));
}

TEST(Dictionary, findsByKindOrNotAtAll) {
  Dictionary dictionary;
  dictionary.set("array", Array{PropertyList(1)});
  dictionary.set("dictionary", Dictionary{});
  dictionary.set("text", "12");
  EXPECT_NE(dictionary.array("array"), nullptr);
  EXPECT_EQ(dictionary.array("text"), nullptr);
  EXPECT_EQ(dictionary.array("missing"), nullptr);
  EXPECT_NE(dictionary.dictionary("dictionary"), nullptr);
  EXPECT_EQ(dictionary.dictionary("array"), nullptr);
  EXPECT_EQ(dictionary.string("dictionary"), nullptr);
  EXPECT_EQ(dictionary.integerValue("text"), 12);
  EXPECT_EQ(dictionary.integerValue("missing"), 0);
}

TEST(Dictionary, fromEntriesSortsAndLetsTheLastOfAKeyStay) {
  const auto made = Dictionary::fromEntries({{"b", 1}, {"a", 2}, {"b", 3}, {"c", 4}, {"a", 5}, {"b", 6}});
  Dictionary expected;
  expected.set("a", 5);
  expected.set("b", 6);
  expected.set("c", 4);
  EXPECT_EQ(made, expected);
  EXPECT_EQ(Dictionary::fromEntries({}), Dictionary{});
}

TEST(Dictionary, fromEntriesEqualsSettingOneByOne) {
  std::mt19937 random(2009);
  for (int round = 0; round < 200; ++round) {
    std::vector<Dictionary::Entry> entries;
    Dictionary expected;
    for (unsigned i = 0; i < random() % 20; ++i) {
      const std::string key = std::to_string(random() % 12);
      const int value = static_cast<int>(random() % 1000);
      entries.emplace_back(key, value);
      expected.set(key, value);
    }
    EXPECT_EQ(Dictionary::fromEntries(entries), expected);
  }
}

}  // namespace
}  // namespace tarvo
