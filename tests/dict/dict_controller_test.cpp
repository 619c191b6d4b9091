// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dict_controller.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/dict/numbered_dictionaries.h"

namespace tarvo::test {
namespace {

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
