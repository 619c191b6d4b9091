// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dict_controller.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/dict/dictionary_world.h"

namespace tarvo::test {
namespace {

Names numbered(int count, const char* extension = ".TRet") {
  Names names;
  for (int i = 0; i < count; ++i) names.push_back((i < 10 ? "d0" : "d") + std::to_string(i) + extension);
  return names;
}

void putAll(const DictionaryWorld& world, const Names& names) {
  for (const std::string& name : names) world.put({name.c_str()});
}

DictController loaded(DictionaryWorld& world, const Names& names) {
  DictController controller = world.list();
  controller.updateDictionary(names);
  return controller;
}

TEST(DictController, aListThatWasNeverScannedStaysWithoutEntries) {
  DictionaryWorld world;
  world.put({"a"});
  DictController controller(world.services());
  controller.setKind(technical);
  controller.setDirection(EJ);
  controller.setDicFolderPath(world.dictionaryFolder());
  controller.updateDictionary({"a"});
  controller.loadDictionary({"a"});
  controller.unloadDictionary("a");
  controller.exchangeDictionary(0, 1);
  controller.clearInformation();
  EXPECT_FALSE(controller.allDictionaries());
  EXPECT_FALSE(controller.selectedDictionary());
  EXPECT_EQ(controller.notSelectedDictionary(), Names{});
  EXPECT_EQ(controller.getAllDictionary(), Names{});
  EXPECT_TRUE(controller.checkMaxOver(numbered(9)));
  EXPECT_FALSE(controller.checkMaxOver(numbered(8)));
}

TEST(DictController, ordersArePlacesInTheGivenListWithGapsForMissingNames) {
  DictionaryWorld world;
  world.put({"a.TRet", "b.TRet"});
  const DictController controller = loaded(world, {"b.TRet", "missing.TRet", "a.TRet"});
  EXPECT_EQ(entryOf(controller, "b.TRet").order, 0);
  EXPECT_EQ(entryOf(controller, "a.TRet").order, 2);
  EXPECT_EQ(loadedOf(controller), (Names{"b.TRet", "a.TRet"}));
}

TEST(DictController, aNameInAnotherLetterCaseLoadsTheFileUnderTheFilesOwnName) {
  DictionaryWorld world;
  world.put({"a.TRet", "Éclair.TRet", "ß.TRet"});
  const DictController controller = loaded(world, {"A.tret", "éCLAIR.tret", "SS.TRet"});
  EXPECT_EQ(loadedOf(controller), (Names{"a.TRet", "Éclair.TRet"}));
}

TEST(DictController, ofTwoFilesThatDifferOnlyInCaseTheFirstOfTheScanIsLoaded) {
  DictionaryWorld world;
  world.put({"A.TRet", "a.TRet"});
  if (world.files.list(world.dictionaryFolder())->size() < 2) GTEST_SKIP() << "this disk ignores letter case";
  const DictController controller = loaded(world, {"a.TRet"});
  EXPECT_EQ(loadedOf(controller), Names{"A.TRet"});
  EXPECT_EQ(controller.notSelectedDictionary(), Names{"a.TRet"});
}

TEST(DictController, aNameGivenTwiceTakesItsLaterPlace) {
  DictionaryWorld world;
  world.put({"a.TRet", "b.TRet"});
  const DictController controller = loaded(world, {"a.TRet", "b.TRet", "A.TRET"});
  EXPECT_EQ(entryOf(controller, "a.TRet").order, 2);
  EXPECT_EQ(loadedOf(controller), (Names{"b.TRet", "a.TRet"}));
}

TEST(DictController, aFileThatTheScanDroppedGetsNoEntry) {
  DictionaryWorld world;
  world.put({"cwl.TRet", "a.TRet"});
  const DictController controller = loaded(world, {"cwl.TRet", "a.TRet"});
  EXPECT_EQ(entryNames(controller), Names{"a.TRet"});
  EXPECT_EQ(entryOf(controller, "a.TRet").order, 1);
  EXPECT_EQ(loadedOf(controller), Names{"a.TRet"});
}

TEST(DictController, aFileThatCameAfterTheScanIsLoadedOnlyAfterTheNext) {
  DictionaryWorld world;
  world.put({"a.TRet"});
  DictController controller = world.list();
  world.put({"new.TRet"});
  controller.updateDictionary({"new.TRet", "a.TRet"});
  EXPECT_EQ(loadedOf(controller), Names{"a.TRet"});
  controller.updateAllDictionary();
  controller.updateDictionary({"new.TRet", "a.TRet"});
  EXPECT_EQ(loadedOf(controller), (Names{"new.TRet", "a.TRet"}));
}

TEST(DictController, anEntryWhoseFileWentAwayIsNotLoadedButStaysUntilTheNextScan) {
  DictionaryWorld world;
  world.put({"a.TRet", "b.TRet"});
  DictController controller = world.list();
  world.take("a.TRet");
  controller.updateDictionary({"a.TRet", "b.TRet"});
  EXPECT_EQ(loadedOf(controller), Names{"b.TRet"});
  EXPECT_EQ(controller.getAllDictionary(), (Names{"a.TRet", "b.TRet"}));
  controller.updateAllDictionary();
  EXPECT_EQ(controller.getAllDictionary(), Names{"b.TRet"});
}

TEST(DictController, anEmptyListUnloadsEverything) {
  DictionaryWorld world;
  world.put({"a.TRet", "b.TRet"});
  DictController controller = loaded(world, {"a.TRet", "b.TRet"});
  controller.updateDictionary({});
  for (const DictionaryEntry& entry : *controller.allDictionaries()) {
    EXPECT_FALSE(entry.check) << entry.name;
    EXPECT_EQ(entry.order, -1) << entry.name;
  }
  EXPECT_FALSE(controller.selectedDictionary());
}

TEST(DictController, ordersAreComparedAsNumbersAndNoLimitCutsAListOff) {
  DictionaryWorld world;
  Names names = numbered(12);
  putAll(world, names);
  std::reverse(names.begin(), names.end());
  EXPECT_EQ(loadedOf(loaded(world, names)), names);
}

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

TEST(DictController, rescanningKeepsWhatIsLoadedAndStillThere) {
  DictionaryWorld world;
  world.put({"a.TRet", "b.TRet"});
  DictController controller = loaded(world, {"b.TRet", "a.TRet"});
  world.take("b.TRet");
  world.put({"c.TRet"});
  controller.updateAllDictionary();
  EXPECT_EQ(loadedOf(controller), Names{"a.TRet"});
  EXPECT_EQ(controller.notSelectedDictionary(), Names{"c.TRet"});
}

TEST(DictController, clearingKeepsTheEntries) {
  DictionaryWorld world;
  world.put({"c.TRet", "a.TRet", "b.TRet"});
  DictController controller = loaded(world, {"c.TRet", "a.TRet"});
  controller.clearInformation();
  EXPECT_FALSE(controller.selectedDictionary());
  EXPECT_EQ(controller.notSelectedDictionary(), (Names{"a.TRet", "b.TRet", "c.TRet"}));
  EXPECT_EQ(entryOf(controller, "c.TRet").order, -1);
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

TEST(DictController, theBuiltInMemoriesAreLeftOutOfAllNamesOnly) {
  DictionaryWorld world;
  Dictionary titles;
  titles.set("tarvoPathMemoryEtoJTitle", "MAIN.etm");
  titles.set("tarvoPathMemoryJtoETitle", "mainj.ETM");
  const ProductPaths paths(world.locations, titles);
  world.put({"main.etm", "mainj.etm", "own.etm"});
  DictController controller({world.files, world.texts, world.bundle, paths, world.locations});
  controller.initializeDictController(memory, world.dictionaryFolder(), EJ);
  EXPECT_EQ(controller.getAllDictionary(), Names{"own.etm"});
  EXPECT_EQ(controller.notSelectedDictionary(), (Names{"main.etm", "mainj.etm", "own.etm"}));
  controller.setKind(user);
  EXPECT_EQ(controller.getAllDictionary().size(), 3U) << "of memories only";
}

struct PathCase {
  DictionaryKind kind;
  Direction direction;
  std::optional<std::string> name;
  std::string path;  // beginning with "/": as it is; else below the folder of dictionaries
};

class DictionaryPaths : public testing::TestWithParam<PathCase> {};

TEST_P(DictionaryPaths, areBelowTheFolderButForTheOwnBuiltInMemory) {
  DictionaryWorld world;
  const DictController controller = world.list(GetParam().kind, GetParam().direction);
  const std::string& expected = GetParam().path;
  const bool isWhole = expected.empty() || expected.front() == '/';
  EXPECT_EQ(controller.getDicPath(GetParam().name).text(), isWhole ? expected : world.path(expected));
}

INSTANTIATE_TEST_SUITE_P(DictController, DictionaryPaths,
                         testing::Values(PathCase{memory, EJ, std::nullopt, ""}, PathCase{memory, EJ, "a.etm", "a.etm"},
                                         PathCase{memory, EJ, "MAIN", "/x/e"}, PathCase{memory, JE, "MAIN", "MAIN"},
                                         PathCase{memory, JE, "Mainj", "/x/j"}, PathCase{memory, EJ, "Mainj", "Mainj"},
                                         PathCase{technical, EJ, "main", "main"},
                                         PathCase{user, JE, "Mainj", "Mainj"}));

TEST(DictController, ofAThousandDictionariesAllCanBeLoadedInAnyOrder) {
  DictionaryWorld world;
  Names names = numbered(1000);
  putAll(world, names);
  std::mt19937 random(7);
  std::shuffle(names.begin(), names.end(), random);
  EXPECT_EQ(loadedOf(loaded(world, names)), names);
}

}  // namespace
}  // namespace tarvo::test
