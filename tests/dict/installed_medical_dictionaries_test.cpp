// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/medical_dictionaries.h"

#include <gtest/gtest.h>

#include "platform/text/text_rules.h"
#include "tests/dict/medical_world.h"
#include "tests/support/memory_files.h"

namespace tarvo::test {
namespace {

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

  EXPECT_EQ(UserDefaults(world.files, world.folder.at("defaults.plist")).find(GetParam().flag), nullptr)
      << "the styles are not written yet";
  world.store.writeTarvoStylePlist();
  world.defaults.synchronize();
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

TEST_P(MedicalRows, areKnownAsInsertedInTheirDirectionWhateverTheLetterCase) {
  const MedicalWorld world;
  const bool isEnglish = std::string_view(GetParam().direction) == "EJ";
  const Direction own = isEnglish ? Direction::englishToJapanese : Direction::japaneseToEnglish;
  const Direction other = isEnglish ? Direction::japaneseToEnglish : Direction::englishToJapanese;
  for (const PropertyList& name : GetParam().after) {
    const bool isOfTheUser = *name.string() == G;
    EXPECT_EQ(world.medical.inserts(own, caseFolded(*name.string())), !isOfTheUser) << *name.string();
    EXPECT_FALSE(world.medical.inserts(other, *name.string())) << *name.string();
  }
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

TEST(InstalledMedicalDictionaries, waitForSettingsThatCannotBeRead) {
  MedicalWorld world;
  world.install("TechECorwell6");
  world.openLists({G}, {G});
  MemoryFiles disk;
  disk.put("/settings.plist", "");
  disk.refuse(MemoryFiles::Operation::read, "/settings.plist", std::errc::io_error);
  UserDefaults unread(disk, DiskPath("/settings.plist"));
  MedicalDictionaries medical({world.files, world.locations, world.paths, world.texts, unread, world.store});
  EXPECT_TRUE(medical.insertInstalled().empty()) << "the user may have taken it out of the list";
  EXPECT_EQ(world.list("EJ"), Array{G});
}

}  // namespace
}  // namespace tarvo::test
