// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/medical_dictionaries.h"

#include <gtest/gtest.h>

#include "tests/dict/style_pane_world.h"

namespace tarvo::test {
namespace {

constexpr const char *G = "General.TRet", *CA = "Clinic A.TRet", *CB = "Clinic B.TRet", *X = "Other.TRet";

struct MedicalWorld : StylePaneWorld {
  MedicalWorld() {
    setText("IgakuSougou", "General");
    setText("Shinryouka", "Clinic");
    setText("Corwell", "Corwell");
    setText("Tekado", "Tekado");
    setText("NameETekado", "TekE.TRet");
    setText("NameJTekado", "TekJ");
    for (const char* key : {"TechECorwell6", "TechJCorwell6", "TechETekado", "TechJTekado"}) {
      setText(key, folder / ("data/" + std::string(key)));
    }
    defaults.observer = [this](std::string_view key, const PropertyList* value) {
      log += key.empty() ? "flush " : std::string(key) + (value != nullptr && value->booleanValue() ? "=true " : "? ");
    };
  }
  void install(const char* key) const { folder.write("data/" + std::string(key), ""); }
  void openLists(const Array& english, const Array& japanese) {
    Dictionary ej, je, style;
    ej.set(keyNameTD, english);
    je.set(keyNameTD, japanese);
    style.set(keyNameEJ, ej);
    style.set(keyNameJE, je);
    open({style});
    writes = 0;
  }
  Array list(std::string_view direction, int index = 0) const {
    const auto style = store.getStyleAtIndex(index);
    const Dictionary* half = style ? style->dictionary(direction) : nullptr;
    const Array* names = half != nullptr ? half->array(keyNameTD) : nullptr;
    return names != nullptr ? *names : Array{"(absent)"};
  }

  // As a start does it: whether a list may have changed.
  bool insertInstalled() {
    const std::vector<std::string_view> flags = medical.insertInstalled();
    medical.remember(flags);
    return !flags.empty();
  }

  MedicalDictionaries medical{files, locations, texts, defaults, store};
  std::string log;
};

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
  for (int i = 0; i < 7; ++i) list.push_back("d" + std::to_string(i));
  world.openLists(list, {});
  world.medical.insertCorwell(Direction::englishToJapanese, "cwl.TRet", "cwla.TRet");
  EXPECT_EQ(world.list("EJ").size(), 10U);
}

TEST(InstalledMedicalDictionaries, areInsertedInTheirOrderAndFlaggedAndTheFlagsFlushed) {
  MedicalWorld world;
  world.openLists({G, CA, X}, {G, CA, X});
  for (const char* key : {"TechECorwell6", "TechJCorwell6", "TechETekado", "TechJTekado"}) world.install(key);
  EXPECT_TRUE(world.insertInstalled());
  EXPECT_EQ(world.log, "Corwell1stE=true Corwell1stJ=true Tekado1stE=true Tekado1stJ=true flush ");
  EXPECT_EQ(world.list("EJ"), (Array{G, CA, "TekE.TRet", "cwl.TRet", X, "cwla.TRet"}));
  EXPECT_EQ(world.list("JE"), (Array{G, CA, "TekJ", "cwl", X, "cwla"})) << "files of that direction have no suffix";
  EXPECT_EQ(world.writes, 0);
}

TEST(InstalledMedicalDictionaries, withNoneInstalledOnlyFlushTheSettings) {
  MedicalWorld world;
  world.openLists({G}, {G});
  EXPECT_FALSE(world.insertInstalled());
  EXPECT_EQ(world.log, "flush ");
  EXPECT_EQ(world.list("EJ"), Array{G});
}

struct RowCase {
  const char *dataKey, *flag, *direction;
  Array after;
};

class MedicalRows : public testing::TestWithParam<RowCase> {};

TEST_P(MedicalRows, runOnceWhenTheirDataAppears) {
  MedicalWorld world;
  world.openLists({G}, {G});
  EXPECT_FALSE(world.insertInstalled());
  world.install(GetParam().dataKey);
  EXPECT_TRUE(world.insertInstalled());
  EXPECT_EQ(world.list(GetParam().direction), GetParam().after);
  EXPECT_EQ(world.list(std::string_view(GetParam().direction) == "EJ" ? "JE" : "EJ"), Array{G});

  const UserDefaults anotherRun(world.files, world.folder.at("defaults.plist"));
  ASSERT_NE(anotherRun.find(GetParam().flag), nullptr);
  EXPECT_EQ(*anotherRun.find(GetParam().flag), PropertyList(true));
  world.openLists({G}, {G});
  EXPECT_FALSE(world.insertInstalled()) << "what the user removed is not put back";
  EXPECT_EQ(world.list(GetParam().direction), Array{G});
}

TEST_P(MedicalRows, doNotRunWhenTheirFlagIsThereWhateverItSays) {
  MedicalWorld world;
  world.openLists({G}, {G});
  world.install(GetParam().dataKey);
  world.defaults.set(GetParam().flag, false);
  EXPECT_FALSE(world.insertInstalled());
  EXPECT_EQ(world.list(GetParam().direction), Array{G});
}

INSTANTIATE_TEST_SUITE_P(MedicalDictionaries, MedicalRows,
                         testing::Values(RowCase{"TechECorwell6", "Corwell1stE", "EJ", {"cwl.TRet", G, "cwla.TRet"}},
                                         RowCase{"TechJCorwell6", "Corwell1stJ", "JE", {"cwl", G, "cwla"}},
                                         RowCase{"TechETekado", "Tekado1stE", "EJ", {"TekE.TRet", G}},
                                         RowCase{"TechJTekado", "Tekado1stJ", "JE", {"TekJ", G}}),
                         [](const auto& test) { return std::string(test.param.flag); });

TEST(InstalledMedicalDictionaries, aFlagIsSetAndAWriteDueEvenWhenNoListChanged) {
  MedicalWorld world;
  world.openLists({X}, {});
  world.install("TechETekado");
  EXPECT_TRUE(world.insertInstalled());
  EXPECT_EQ(world.list("EJ"), Array{X});
  EXPECT_NE(world.defaults.find("Tekado1stE"), nullptr);
}

TEST(InstalledMedicalDictionaries, aFileWithoutStylesStaysWithoutThem) {
  for (const bool wrongType : {false, true}) {
    MedicalWorld world;
    Dictionary root;
    root.set("Extra", "kept");
    if (wrongType) root.set(keyNameStyle, "no array");
    ASSERT_TRUE(PlistFile(world.files, world.stylePath).write(root));
    ASSERT_TRUE(world.store.readUserStyles());
    world.install("TechETekado");
    EXPECT_TRUE(world.insertInstalled());
    EXPECT_NE(world.defaults.find("Tekado1stE"), nullptr);
    EXPECT_EQ(world.store.root(), root);
  }
}

TEST(InstalledMedicalDictionaries, aPathThatIsNotAbsoluteMeansNotInstalled) {
  MedicalWorld world;
  world.openLists({G}, {});
  world.setText("TechETekado", ".");
  EXPECT_FALSE(world.insertInstalled());
}

// The program was started in some folder; where that is must not matter.
class WorkingFolder {
 public:
  explicit WorkingFolder(const std::string& folder) { std::filesystem::current_path(folder); }
  ~WorkingFolder() { std::filesystem::current_path(before_); }

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
};

TEST(InstalledMedicalDictionaries, aPathWithoutATextIsNotLookedForInTheWorkingFolder) {
  MedicalWorld world;
  const WorkingFolder there(world.folder.path());
  world.texts.clear();
  for (const char* key : {"TechECorwell6", "TechJCorwell6", "TechETekado", "TechJTekado"}) {
    world.folder.write(key, "");
    ASSERT_TRUE(std::filesystem::exists(key));
  }
  world.setText("IgakuSougou", "General");
  world.openLists({G}, {G});
  EXPECT_FALSE(world.insertInstalled());
  EXPECT_EQ(world.log, "flush ");
  EXPECT_EQ(world.list("EJ"), Array{G});
}

}  // namespace
}  // namespace tarvo::test
