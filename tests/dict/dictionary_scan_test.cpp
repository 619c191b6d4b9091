// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/dict/dictionary_world.h"

namespace tarvo::test {
namespace {

constexpr FourCharCode blankCreator = fourCharCode("    ");

TEST(DictionaryScan, entriesStandInTheOrderOfTheListingAndNoneIsLoaded) {
  DictionaryWorld world;
  world.put({"b.TRet", "a.TRet", "Z.TRet", "あ.TRet"});
  DictController controller(world.services());
  EXPECT_TRUE(controller.initializeDictController(technical, world.dictionaryFolder(), EJ));
  EXPECT_EQ(entryNames(controller), (Names{"Z.TRet", "a.TRet", "b.TRet", "あ.TRet"}));
  for (const DictionaryEntry& entry : *controller.allDictionaries()) {
    EXPECT_FALSE(entry.check);
    EXPECT_EQ(entry.order, -1);
  }
  EXPECT_FALSE(controller.selectedDictionary());
}

TEST(DictionaryScan, anEmptyFolderGivesNoLoadedListButEmptyOtherLists) {
  DictionaryWorld world;
  DictController controller(world.services());
  EXPECT_FALSE(controller.initializeDictController(technical, world.dictionaryFolder(), EJ));
  EXPECT_FALSE(controller.selectedDictionary());
  EXPECT_EQ(controller.notSelectedDictionary(), Names{});
  EXPECT_EQ(controller.getAllDictionary(), Names{});
  EXPECT_TRUE(controller.allDictionaries()) << "a scan that finds nothing is a scan";
}

TEST(DictionaryScan, aFolderThatVanishesLeavesNoEntriesOfTheLastScan) {
  DictionaryWorld world;
  world.put({"a.TRet"});
  DictController controller = world.list();
  controller.updateDictionary({"a.TRet"});
  std::filesystem::remove_all(world.dictionaryFolder().text());
  EXPECT_FALSE(controller.initializeDictionary());
  ASSERT_TRUE(controller.allDictionaries());
  EXPECT_TRUE(controller.allDictionaries()->empty());
  EXPECT_FALSE(controller.selectedDictionary());
}

TEST(DictionaryScan, aFolderThatIsNoAbsolutePathListsNothing) {
  DictionaryWorld world;
  DictController controller(world.services());
  for (const char* folder : {"", ".", "dictionaries"}) {
    EXPECT_FALSE(controller.initializeDictController(technical, DiskPath(folder), EJ)) << folder;
  }
}

TEST(DictionaryScan, technicalDictionariesAreKnownByTheirExtensionIgnoringCase) {
  DictionaryWorld world;
  world.put({"a.TRet", "b.tret", "c.TRET", "x.jtd", "y.JTD", "z.dat", "w.TRet.bak", "noext", "q.eud2"});
  EXPECT_EQ(entryNames(world.list()), (Names{"a.TRet", "b.tret", "c.TRET", "x.jtd", "y.JTD"}));
}

TEST(DictionaryScan, foldersAndHiddenNamesCountLikeAnyOtherName) {
  DictionaryWorld world;
  world.put({".hidden.TRet", ".TRet", "._a.TRet"});
  std::filesystem::create_directory(world.path("folder.TRet"));
  EXPECT_EQ(entryNames(world.list()), (Names{"._a.TRet", ".hidden.TRet", "folder.TRet"}))
      << "a name that is nothing but a suffix has no extension";
}

struct KindCase {
  const char* description;
  DictionaryKind kind;
  Direction direction;
  Names found;
};

class UserDictionaryKinds : public testing::TestWithParam<KindCase> {};

TEST_P(UserDictionaryKinds, areKnownByDirectionAndExtensionIgnoringCase) {
  DictionaryWorld world;
  world.put({"a.eud2", "b.EUD2", "c.jud", "d.JUD", "e.etm", "f.ETM", "g.jtm", "h.JTM", "i.TRet", "j"});
  DictController controller(world.services());
  EXPECT_EQ(controller.initializeDictController(GetParam().kind, world.dictionaryFolder(), GetParam().direction),
            !GetParam().found.empty());
  EXPECT_EQ(entryNames(controller), GetParam().found);
}

INSTANTIATE_TEST_SUITE_P(DictionaryScan, UserDictionaryKinds,
                         testing::Values(KindCase{"englishDictionaries", user, EJ, {"a.eud2", "b.EUD2"}},
                                         KindCase{"japaneseDictionaries", user, JE, {"c.jud", "d.JUD"}},
                                         KindCase{"englishMemories", memory, EJ, {"e.etm", "f.ETM"}},
                                         KindCase{"japaneseMemories", memory, JE, {"g.jtm", "h.JTM"}}),
                         [](const auto& test) { return test.param.description; });

TEST(DictionaryScan, changingTheKindTakesEffectAtTheNextScan) {
  DictionaryWorld world;
  world.put({"a.etm", "b.jtm"});
  DictController controller = world.list(memory, EJ);
  EXPECT_EQ(entryNames(controller), Names{"a.etm"});
  controller.setDirection(JE);
  EXPECT_EQ(entryNames(controller), Names{"a.etm"});
  EXPECT_TRUE(controller.initializeDictionary());
  EXPECT_EQ(entryNames(controller), Names{"b.jtm"});
  controller.setKind(user);
  EXPECT_FALSE(controller.initializeDictionary());
  EXPECT_TRUE(entryNames(controller).empty());
}

class TypeCodes : public testing::Test {
 protected:
  void SetUp() override {
    if (placeForAttributes().empty()) GTEST_SKIP() << "needs type codes: no disk here keeps extended attributes";
  }
  void putWithType(const DictionaryWorld& world, const char* name, FourCharCode type) {
    world.put({name});
    DictionaryWorld& writable = const_cast<DictionaryWorld&>(world);
    ASSERT_TRUE(writable.files.setCodes(DiskPath(world.path(name)), type, blankCreator));
  }
};

TEST_F(TypeCodes, admitATechnicalDictionaryWithoutItsExtension) {
  DictionaryWorld world(placeForAttributes());
  putWithType(world, "x.dat", fourCharCode("TRjt"));
  putWithType(world, "noext", fourCharCode("TRjt"));
  putWithType(world, "y.dat", fourCharCode("TRJT"));
  putWithType(world, "z.dat", fourCharCode("TReu"));
  EXPECT_EQ(entryNames(world.list()), (Names{"noext", "x.dat"}));
}

TEST_F(TypeCodes, admitNoUserDictionaryAndNoMemory) {
  DictionaryWorld world(placeForAttributes());
  putWithType(world, "f.dat", fourCharCode("TReu"));
  putWithType(world, "g.dat", fourCharCode("TRjt"));
  for (const DictionaryKind kind : {user, memory}) {
    for (const Direction direction : bothDirections) EXPECT_TRUE(entryNames(world.list(kind, direction)).empty());
  }
}

TEST_F(TypeCodes, areWhatBringsTheJapaneseMedicalFilesIntoTheList) {
  DictionaryWorld world(placeForAttributes());
  world.setText("TechJCorwell6", world.folder / "data");
  world.folder.write("data", "");
  world.put({"cwl"});
  putWithType(world, "cwla", fourCharCode("TRjt"));
  EXPECT_EQ(entryNames(world.list(technical, JE)), Names{"cwla"}) << "passing the medical filter is not enough";
}

TEST_F(TypeCodes, doNotReplaceTheMedicalDataOfTheJapaneseFiles) {
  DictionaryWorld world(placeForAttributes());
  world.setText("TechECorwell6", world.folder / "data");
  world.folder.write("data", "");
  putWithType(world, "cwl", fourCharCode("TRjt"));
  EXPECT_TRUE(entryNames(world.list(technical, JE)).empty()) << "the English data is not the Japanese one";
}

TEST(MedicalFiles, areListedOnlyWhileTheirDataIsInstalled) {
  DictionaryWorld world;
  world.setText("TechECorwell6", world.folder / "data");
  world.put({"cwl.TRet", "cwla.TRet", "other.TRet"});
  DictController controller = world.list();
  EXPECT_EQ(entryNames(controller), Names{"other.TRet"});
  world.folder.write("data", "");
  controller.initializeDictionary();
  EXPECT_EQ(entryNames(controller), (Names{"cwl.TRet", "cwla.TRet", "other.TRet"}));
}

TEST(MedicalFiles, bothDependOnTheMainEditionsData) {
  DictionaryWorld world;
  world.setText("TechECorwell6", world.folder / "data");
  world.folder.write("dataa", "");
  world.put({"cwla.TRet"});
  EXPECT_TRUE(entryNames(world.list()).empty());
}

TEST(MedicalFiles, theNameAndNotTheDirectionChoosesTheData) {
  DictionaryWorld world;
  world.setText("TechECorwell6", world.folder / "data");
  world.folder.write("data", "");
  world.put({"cwl.TRet"});
  EXPECT_EQ(entryNames(world.list(technical, JE)), Names{"cwl.TRet"});
}

TEST(MedicalFiles, aFolderInThePlaceOfTheDataCounts) {
  DictionaryWorld world;
  world.setText("TechECorwell6", world.folder / "data");
  world.folder.makeFolder("data");
  world.put({"cwl.TRet"});
  EXPECT_EQ(entryNames(world.list()), Names{"cwl.TRet"});
}

TEST(MedicalFiles, aTextThatIsNoAbsolutePathMeansNotInstalled) {
  DictionaryWorld world;
  world.setText("TechECorwell6", ".");
  world.put({"cwl.TRet"});
  EXPECT_TRUE(entryNames(world.list()).empty());
}

TEST(MedicalFiles, anotherLetterCaseIsAnOrdinaryDictionary) {
  DictionaryWorld world;
  world.put({"CWL.TRet", "cwl.tret", "Cwla.TRet"});
  EXPECT_EQ(entryNames(world.list()), (Names{"CWL.TRet", "Cwla.TRet", "cwl.tret"}));
}

TEST(MedicalFiles, namesThatEqualTheirJapaneseDisplayNamesAreDroppedIgnoringCase) {
  DictionaryWorld world;
  world.setText("NameJCorwell6", "Corwell Médical.TRet");
  world.setText("NameJCorwellAbbrev", "Ｃorwell Abbrev.TRet");
  world.put({"CORWELL MÉDICAL.tret", "ｃorwell abbrev.TRet", "Corwell abbrev.TRet", "other.TRet"});
  EXPECT_EQ(entryNames(world.list()), (Names{"Corwell abbrev.TRet", "other.TRet"}))
      << "full-width letters are other letters";
}

TEST(MedicalFiles, theFilterHoldsForEveryKind) {
  DictionaryWorld world;
  world.setText("NameJCorwell6", "a.eud2");
  world.put({"A.eud2", "b.eud2"});
  EXPECT_EQ(entryNames(world.list(user)), Names{"b.eud2"});
}

}  // namespace
}  // namespace tarvo::test
