// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_reorder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace tarvo::test {
namespace {

using Names = std::vector<std::string>;
using Rows = std::vector<int>;

struct DropCase {
  const char* description;
  Names names;
  Rows rows;
  int dropRow;
  Names result;
  int firstMoved;
};

class Drop : public testing::TestWithParam<DropCase> {};

TEST_P(Drop, movesTheRowsBeforeTheRowTheyAreDroppedOn) {
  const DropCase& drop = GetParam();
  const auto dropped = withRowsDropped(drop.names, drop.rows, drop.dropRow);
  ASSERT_TRUE(dropped);
  EXPECT_EQ(dropped->names, drop.result);
  EXPECT_EQ(dropped->firstMoved, drop.firstMoved);
  EXPECT_EQ(dropped->movedCount, static_cast<int>(drop.rows.size()));
}

INSTANTIATE_TEST_SUITE_P(
    DictionaryReorder, Drop,
    testing::Values(DropCase{"severalRowsToTheEnd", {"a", "b", "c", "d"}, {0, 2}, 4, {"b", "d", "a", "c"}, 2},
                    DropCase{"theLastRowToTheTop", {"a", "b", "c", "d"}, {3}, 0, {"d", "a", "b", "c"}, 0},
                    DropCase{"aRowBeforeItself", {"a", "b", "c", "d"}, {1}, 1, {"a", "b", "c", "d"}, 1},
                    DropCase{"aRowBehindItself", {"a", "b", "c", "d"}, {1}, 2, {"a", "b", "c", "d"}, 1},
                    DropCase{"rowsOnBothSidesOfThePlace", {"a", "b", "c", "d"}, {0, 3}, 2, {"b", "a", "d", "c"}, 1},
                    DropCase{"rowsInTheirOwnOrder", {"a", "b", "c", "d"}, {3, 0}, 2, {"b", "d", "a", "c"}, 1},
                    DropCase{"allRows", {"a", "b"}, {1, 0}, 1, {"b", "a"}, 0},
                    DropCase{"noRows", {"a", "b"}, {}, 1, {"a", "b"}, 1},
                    DropCase{"namesInAnotherCaseLeaveTogether", {"a", "B", "A"}, {0}, 2, {"B", "a"}, 1}),
    [](const auto& test) { return test.param.description; });

TEST(DictionaryReorder, rowsAndPlacesOutsideTheListAreRefused) {
  const Names names{"a", "b", "c"};
  EXPECT_FALSE(withRowsDropped(names, {0}, -1));
  EXPECT_FALSE(withRowsDropped(names, {0}, 4));
  EXPECT_FALSE(withRowsDropped(names, {0, 3}, 1));
  EXPECT_FALSE(withRowsDropped(names, {-1}, 1));
  EXPECT_FALSE(withRowsDropped({}, {0}, 0));
  EXPECT_TRUE(withRowsDropped({}, {}, 0));
  EXPECT_TRUE(withRowsDropped(names, {0}, 3));
}

// The same drop thought of in another way: each row that stays is before or behind the place, each moved one at it.
Names droppedBySorting(const Names& names, const Rows& rows, int dropRow) {
  Rows order(names.size());
  std::iota(order.begin(), order.end(), 0);
  const auto rank = [&](int row) {
    const auto place = std::find(rows.begin(), rows.end(), row);
    if (place != rows.end()) return std::pair(1, static_cast<int>(place - rows.begin()));
    return std::pair(row < dropRow ? 0 : 2, row);
  };
  std::sort(order.begin(), order.end(), [&](int a, int b) { return rank(a) < rank(b); });
  Names result;
  for (const int row : order) result.push_back(names[static_cast<std::size_t>(row)]);
  return result;
}

TEST(DictionaryReorder, everyDropIsAPermutationWithTheMovedRowsTogether) {
  std::mt19937 random(20090131);
  for (int round = 0; round < 5000; ++round) {
    Names names;
    for (std::size_t i = 0, count = random() % 13; i < count; ++i) names.push_back("name " + std::to_string(i));
    Rows rows(names.size());
    std::iota(rows.begin(), rows.end(), 0);
    std::shuffle(rows.begin(), rows.end(), random);
    rows.resize(random() % (rows.size() + 1));
    const int dropRow = static_cast<int>(random() % (names.size() + 1));

    const auto dropped = withRowsDropped(names, rows, dropRow);
    ASSERT_TRUE(dropped);
    ASSERT_TRUE(std::is_permutation(names.begin(), names.end(), dropped->names.begin(), dropped->names.end()));
    ASSERT_EQ(dropped->names, droppedBySorting(names, rows, dropRow));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      ASSERT_EQ(dropped->names[static_cast<std::size_t>(dropped->firstMoved) + i],
                names[static_cast<std::size_t>(rows[i])]);
    }
  }
}

TEST(DictionaryReorder, exchangingTwiceIsTheListAsItWas) {
  std::mt19937 random(20090201);
  Names names{"a", "b", "c", "d", "e"};
  for (int round = 0; round < 500; ++round) {
    const int first = static_cast<int>(random() % names.size()), second = static_cast<int>(random() % names.size());
    const auto once = exchanged(names, first, second);
    ASSERT_TRUE(once);
    ASSERT_TRUE(std::is_permutation(names.begin(), names.end(), once->begin(), once->end()));
    ASSERT_EQ((*once)[static_cast<std::size_t>(first)], names[static_cast<std::size_t>(second)]);
    ASSERT_EQ(exchanged(*once, first, second), names);
    names = *once;
  }
}

TEST(DictionaryReorder, exchangingRefusesPlacesOutsideTheList) {
  EXPECT_FALSE(exchanged({"a", "b"}, 0, 2));
  EXPECT_FALSE(exchanged({"a", "b"}, -1, 0));
  EXPECT_FALSE(exchanged({}, 0, 0));
}

}  // namespace
}  // namespace tarvo::test
