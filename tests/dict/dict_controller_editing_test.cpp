// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dict_controller.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/dict/numbered_dictionaries.h"

namespace tarvo::test {
namespace {

TEST(DictController, appendingKeepsWhatIsLoadedAndTheGivenOrder) {
  DictionaryWorld world;
  world.put({"a.TRet", "b.TRet", "c.TRet", "d.TRet"});
  DictController controller = loaded(world, {"a.TRet", "b.TRet"});
  controller.loadDictionary({"d.TRet", "c.TRet"});
  EXPECT_EQ(loadedOf(controller), (Names{"a.TRet", "b.TRet", "d.TRet", "c.TRet"}));
  controller.loadDictionary({"a.TRet"});
  EXPECT_EQ(loadedOf(controller), (Names{"b.TRet", "d.TRet", "c.TRet", "a.TRet"}));
}

TEST(DictController, appendingPastTheLimitIsNotRefused) {
  DictionaryWorld world;
  const Names names = numbered(11);
  putAll(world, names);
  DictController controller = loaded(world, {names.begin(), names.begin() + 8});
  controller.loadDictionary({names.begin() + 8, names.end()});
  EXPECT_EQ(loadedOf(controller), names);
}

TEST(DictController, removingComparesIgnoringCaseAndLeavesOtherNamesAlone) {
  DictionaryWorld world;
  world.put({"a.TRet", "b.TRet"});
  DictController controller = loaded(world, {"a.TRet", "b.TRet"});
  controller.unloadDictionary("zz.TRet");
  EXPECT_EQ(loadedOf(controller), (Names{"a.TRet", "b.TRet"}));
  controller.unloadDictionary("B.TRET");
  EXPECT_EQ(loadedOf(controller), Names{"a.TRet"});
  controller.unloadDictionary("a.TRet");
  EXPECT_FALSE(controller.selectedDictionary());
}

TEST(DictController, everyEditLooksAgainWhetherTheFilesExist) {
  DictionaryWorld world;
  world.put({"a.TRet", "b.TRet", "c.TRet"});
  DictController controller = loaded(world, {"a.TRet", "b.TRet", "c.TRet"});
  world.take("b.TRet");
  EXPECT_EQ(loadedOf(controller).size(), 3U);
  controller.unloadDictionary("zz.TRet");
  EXPECT_EQ(loadedOf(controller), (Names{"a.TRet", "c.TRet"}));
}

TEST(DictController, exchangesTwoPlacesAndIgnoresPlacesThatAreNone) {
  DictionaryWorld world;
  world.put({"a.TRet", "b.TRet", "c.TRet"});
  DictController controller = loaded(world, {"a.TRet", "b.TRet", "c.TRet"});
  controller.exchangeDictionary(0, 2);
  EXPECT_EQ(loadedOf(controller), (Names{"c.TRet", "b.TRet", "a.TRet"}));
  controller.exchangeDictionary(1, 1);
  controller.exchangeDictionary(-1, 0);
  controller.exchangeDictionary(0, 3);
  EXPECT_EQ(loadedOf(controller), (Names{"c.TRet", "b.TRet", "a.TRet"}));
}

TEST(DictController, anExchangeClosesTheGapsOfMissingNames) {
  DictionaryWorld world;
  world.put({"a.TRet", "b.TRet", "c.TRet"});
  DictController controller = loaded(world, {"x.TRet", "a.TRet", "y.TRet", "b.TRet", "c.TRet"});
  controller.exchangeDictionary(0, 1);
  EXPECT_EQ(entryOf(controller, "b.TRet").order, 0);
  EXPECT_EQ(entryOf(controller, "a.TRet").order, 1);
  EXPECT_EQ(entryOf(controller, "c.TRet").order, 2);
}

TEST(DictController, upThenDownIsTheListAsItWas) {
  DictionaryWorld world;
  const Names names = numbered(9);
  putAll(world, names);
  std::mt19937 random(20090131);
  for (int round = 0; round < 200; ++round) {
    Names list = names;
    std::shuffle(list.begin(), list.end(), random);
    list.resize(2 + random() % (list.size() - 1));
    DictController controller = loaded(world, list);
    const int row = 1 + static_cast<int>(random() % (list.size() - 1));
    controller.exchangeDictionary(row, row - 1);
    ASSERT_NE(loadedOf(controller), list);
    controller.exchangeDictionary(row - 1, row);
    ASSERT_EQ(loadedOf(controller), list);
  }
}

struct LimitCase {
  DictionaryKind kind;
  Direction direction;
  const char* extension;
  int limit;
};

class Limits : public testing::TestWithParam<LimitCase> {};

TEST_P(Limits, mayBeReachedButNotPassed) {
  const LimitCase& limit = GetParam();
  DictionaryWorld world;
  const Names names = numbered(limit.limit + 1, limit.extension);
  putAll(world, names);
  DictController controller = world.list(limit.kind, limit.direction);
  const auto load = [&](int count) { controller.updateDictionary({names.begin(), names.begin() + count}); };
  EXPECT_FALSE(controller.checkMaxOver(std::nullopt));
  load(limit.limit - 1);
  EXPECT_FALSE(controller.checkMaxOver(Names{"x"}));
  EXPECT_TRUE(controller.checkMaxOver(Names{"x", "y"}));
  load(limit.limit);
  EXPECT_FALSE(controller.checkMaxOver(Names{}));
  EXPECT_TRUE(controller.checkMaxOver(Names{names[0]})) << "a name that is loaded already counts again";
  load(limit.limit + 1);
  EXPECT_TRUE(controller.checkMaxOver(Names{})) << "over the limit already";
  EXPECT_FALSE(controller.checkMaxOver(std::nullopt));
}

INSTANTIATE_TEST_SUITE_P(DictController, Limits,
                         testing::Values(LimitCase{technical, EJ, ".TRet", TDMax}, LimitCase{user, EJ, ".eud2", UDMax},
                                         LimitCase{user, JE, ".jud", UDMax}, LimitCase{memory, EJ, ".etm", UTMAMax},
                                         LimitCase{memory, JE, ".jtm", UTMAMax}));

TEST(DictController, theLimitsAreEightAndFive) {
  EXPECT_EQ(TDMax, 8);
  EXPECT_EQ(UDMax, 5);
  EXPECT_EQ(UTMAMax, 5);
}

}  // namespace
}  // namespace tarvo::test
