// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/medical_dictionaries.h"

#include <gtest/gtest.h>

#include "tests/dict/medical_world.h"

namespace tarvo::test {
namespace {

struct InsertionCase {
  const char* description;
  Array before, after;
};

class Tekado : public testing::TestWithParam<InsertionCase> {};

TEST_P(Tekado, goesBehindTheLastClinicalDictionary) {
  MedicalWorld world;
  for (const Direction direction : bothDirections) {
    world.openLists(GetParam().before, GetParam().before);
    world.medical.insertTekado(direction, "TekE.TRet");
    const bool isEnglish = direction == Direction::englishToJapanese;
    EXPECT_EQ(world.list(isEnglish ? "EJ" : "JE"), GetParam().after) << isEnglish;
    EXPECT_EQ(world.list(isEnglish ? "JE" : "EJ"), GetParam().before) << isEnglish;
  }
  EXPECT_EQ(world.writes, 0) << "the caller writes once";
}

INSTANTIATE_TEST_SUITE_P(
    MedicalDictionaries, Tekado,
    testing::Values(
        InsertionCase{"behindTwoClinicalOnes", {G, CA, CB, X}, {G, CA, CB, "TekE.TRet", X}},
        InsertionCase{"atTheTopWithoutAClinicalOne", {X, G}, {"TekE.TRet", X, G}},
        InsertionCase{"beforeTheGeneralOneWhenTheClinicalOneIs", {CA, X, G}, {CA, "TekE.TRet", X, G}},
        InsertionCase{"behindTheLastOfClinicalOnesOnBothSides", {CB, G, CA}, {CB, G, CA, "TekE.TRet"}},
        InsertionCase{"notWithoutTheGeneralOne", {CA, X}, {CA, X}}, InsertionCase{"notIntoAnEmptyList", {}, {}},
        InsertionCase{"notWhereItIsInAnyLetterCase", {G, "old TEKADO.TRet"}, {G, "old TEKADO.TRet"}},
        InsertionCase{"aGeneralClinicIsGeneral", {"General Clinic.TRet", X}, {"TekE.TRet", "General Clinic.TRet", X}},
        InsertionCase{"aClinicNamedAfterItIsClinical", {G, "Tekado Clinic"}, {G, "Tekado Clinic", "TekE.TRet"}},
        InsertionCase{"aGeneralOneNamedAfterItIsGeneral", {"Tekado General"}, {"TekE.TRet", "Tekado General"}},
        InsertionCase{"anElementThatIsNoNameKeepsItsPlace", {7, G, CA, true}, {7, G, CA, "TekE.TRet", true}}),
    [](const auto& test) { return test.param.description; });

class Corwell : public testing::TestWithParam<InsertionCase> {};

TEST_P(Corwell, goesBehindTheLastClinicalDictionaryAndItsAbbreviationsToTheEnd) {
  MedicalWorld world;
  world.openLists(GetParam().before, {});
  world.medical.insertCorwell(Direction::englishToJapanese, "cwl.TRet", "cwla.TRet");
  EXPECT_EQ(world.list("EJ"), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    MedicalDictionaries, Corwell,
    testing::Values(InsertionCase{"bothAtTheEnd", {G, CA}, {G, CA, "cwl.TRet", "cwla.TRet"}},
                    InsertionCase{"apartFromEachOther", {CA, G, X}, {CA, "cwl.TRet", G, X, "cwla.TRet"}},
                    InsertionCase{"aroundEverything", {G}, {"cwl.TRet", G, "cwla.TRet"}},
                    InsertionCase{"notWhereItsWordStands", {G, "My corwell.TRet"}, {G, "My corwell.TRet"}},
                    InsertionCase{
                        "againWhereOnlyItsFileNameStands", {G, "cwl.TRet"}, {"cwl.TRet", G, "cwl.TRet", "cwla.TRet"}},
                    InsertionCase{"theOtherDictionaryIsNotIt", {G, "Tekado"}, {"cwl.TRet", G, "Tekado", "cwla.TRet"}}),
    [](const auto& test) { return test.param.description; });

TEST(MedicalDictionaries, theNamesAreLookedUpInTheTextTable) {
  MedicalWorld world;
  world.setText("cwl.TRet", "Corwell 6");
  world.setText("TekE.TRet", "Tekado 7");
  world.openLists({G}, {G});
  world.medical.insertCorwell(Direction::englishToJapanese, "cwl.TRet", "cwla.TRet");
  EXPECT_EQ(world.list("EJ"), (Array{"Corwell 6", G, "cwla.TRet"}));
  world.medical.insertTekado(Direction::japaneseToEnglish, "TekE.TRet");
  EXPECT_EQ(world.list("JE"), (Array{"Tekado 7", G}));
}

TEST(MedicalDictionaries, aSearchWordWithoutTextMatchesNothing) {
  MedicalWorld world;
  world.setText("Shinryouka", "");
  world.setText("Tekado", "");
  world.openLists({X, G}, {});
  world.medical.insertTekado(Direction::englishToJapanese, "TekE.TRet");
  EXPECT_EQ(world.list("EJ"), (Array{"TekE.TRet", X, G}));
  world.setText("IgakuSougou", "");
  world.openLists({X, G}, {});
  world.medical.insertTekado(Direction::englishToJapanese, "TekE.TRet");
  EXPECT_EQ(world.list("EJ"), (Array{X, G}));
}

TEST(MedicalDictionaries, everyRecordGetsAListEvenTheDivider) {
  MedicalWorld world;
  Dictionary withoutList, divider, wrongTypes;
  withoutList.set(keyNameEJ, Dictionary{});
  divider.set(keyNameName, "keyNameSeparator");
  wrongTypes.set(keyNameEJ, "no dictionary");
  world.open({withoutList, divider, 5, wrongTypes});
  world.medical.insertTekado(Direction::englishToJapanese, "TekE.TRet");
  for (const int index : {0, 1, 3}) EXPECT_EQ(world.list("EJ", index), Array{}) << index;
  const Array& styles = *world.store.getAllStyle();
  EXPECT_EQ(styles[2], PropertyList(5)) << "what is no record stays";
  EXPECT_EQ(*styles[1].dictionary()->string(keyNameName), "keyNameSeparator");
  EXPECT_FALSE(styles[1].dictionary()->contains(keyNameJE));
}

TEST(MedicalDictionaries, aListMayPassTheLimitOfTheListModel) {
  MedicalWorld world;
  Array list{G};
  for (int i = 0; i < 7; ++i) list.emplace_back("d" + std::to_string(i));
  world.openLists(list, {});
  world.medical.insertCorwell(Direction::englishToJapanese, "cwl.TRet", "cwla.TRet");
  EXPECT_EQ(world.list("EJ").size(), 10U);
}

}  // namespace
}  // namespace tarvo::test
