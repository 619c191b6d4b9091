// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <sys/xattr.h>

#include "platform/posix/posix_files.h"
#include "tests/dict/dictionary_world.h"

namespace tarvo::test {
namespace {

// Type and creator as the disk holds them, eight characters; "" when there are none.
std::string codesOn(const std::string& path) {
  std::string bytes(32, '\0');
  const ssize_t size = ::getxattr(path.c_str(), "user.com.apple.FinderInfo", bytes.data(), bytes.size());
  return size == 32 ? bytes.substr(0, 8) : "";
}

// A disk that counts what it is asked.
class CountingFiles : public PosixFiles {
 public:
  using PosixFiles::PosixFiles;
  Result<FourCharCode> typeCode(const DiskPath& path) const override {
    ++attributeReads;
    return PosixFiles::typeCode(path);
  }
  Result<std::vector<std::string>> list(const DiskPath& folder) const override {
    ++listings;
    return PosixFiles::list(folder);
  }
  Result<> copyAs(const DiskPath& from, const DiskPath& to, const std::optional<FinderCodes>& codes) override {
    copiedAs = codes ? textOf(codes->type) + textOf(codes->creator) : "";
    return PosixFiles::copyAs(from, to, codes);
  }
  Result<> setCodes(const DiskPath& path, FourCharCode type, FourCharCode creator) override {
    ++codesSetLater;
    return PosixFiles::setCodes(path, type, creator);
  }
  mutable int attributeReads = 0, listings = 0;
  std::string copiedAs;  // type and creator
  int codesSetLater = 0;

 private:
  static std::string textOf(FourCharCode code) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8) text += static_cast<char>(code >> shift & 0xff);
    return text;
  }
};

struct CreationCase {
  const char* description;
  DictionaryKind kind;
  Direction direction;
  const char* name;
  const char* content;
  const char* codes;
};

const CreationCase creationCases[] = {
    {"anEnglishDictionary", user, EJ, "n.eud2", DictionaryWorld::englishTemplate, "TReu    "},
    {"aJapaneseDictionary", user, JE, "n.jud", DictionaryWorld::japaneseTemplate, "TRju    "},
    {"anEnglishMemory", memory, EJ, "n.etm", DictionaryWorld::englishTemplate, ""},
    {"aJapaneseMemory", memory, JE, "n.jtm", DictionaryWorld::japaneseTemplate, ""},
    {"aTechnicalDictionary", technical, EJ, "n.TRet", DictionaryWorld::englishTemplate, ""}};

class Creation : public testing::TestWithParam<CreationCase> {};

TEST_P(Creation, copiesTheTemplateOfTheDirectionAndLoadsTheNewName) {
  DictionaryWorld world;
  DictController controller = world.list(GetParam().kind, GetParam().direction);
  bool isLoaded = false;
  EXPECT_TRUE(controller.createDictionary(GetParam().name, isLoaded));
  EXPECT_TRUE(isLoaded);
  EXPECT_EQ(contentOf(world, GetParam().name), GetParam().content);
  EXPECT_EQ(loadedOf(controller), Names{GetParam().name});
}

TEST_P(Creation, givesCodesToUserDictionariesOnly) {
  if (placeForAttributes().empty()) GTEST_SKIP() << "needs type codes: no disk here keeps extended attributes";
  DictionaryWorld world(placeForAttributes());
  DictController controller = world.list(GetParam().kind, GetParam().direction);
  bool isLoaded = false;
  ASSERT_TRUE(controller.createDictionary(GetParam().name, isLoaded));
  EXPECT_EQ(codesOn(world.path(GetParam().name)), GetParam().codes);
}

INSTANTIATE_TEST_SUITE_P(DictionaryCreation, Creation, testing::ValuesIn(creationCases),
                         [](const auto& test) { return test.param.description; });

TEST(DictionaryCreation, anExistingNameIsRefusedAndTheAnswerLeftAlone) {
  DictionaryWorld world;
  world.put({"x.eud2"});
  CountingFiles files(world.locations);
  DictController controller(world.servicesOver(files));
  controller.initializeDictController(user, world.dictionaryFolder(), EJ);
  const int listings = files.listings;
  for (const bool preset : {true, false}) {
    bool isLoaded = preset;
    EXPECT_FALSE(controller.createDictionary("x.eud2", isLoaded));
    EXPECT_EQ(isLoaded, preset);
  }
  EXPECT_EQ(files.listings, listings) << "nothing is scanned again";
  EXPECT_EQ(contentOf(world, "x.eud2"), "");
}

TEST(DictionaryCreation, anExistingNameInAnotherLetterCaseIsRefused) {
  DictionaryWorld world;
  world.put({"x.eud2"});
  DictController controller = world.list(user);
  bool isLoaded = false;
  EXPECT_FALSE(controller.createDictionary("X.EUD2", isLoaded));
  EXPECT_EQ(world.folder.names("dictionaries"), Names{"x.eud2"});
}

TEST(DictionaryCreation, aMissingFolderIsAFailureThatChangesNothing) {
  DictionaryWorld world;
  world.put({"a.eud2"});
  DictController controller = world.list(user);
  std::filesystem::remove_all(world.dictionaryFolder().text());
  bool isLoaded = true;
  EXPECT_FALSE(controller.createDictionary("n.eud2", isLoaded));
  EXPECT_TRUE(isLoaded);
  EXPECT_EQ(entryNames(controller), Names{"a.eud2"}) << "nothing is scanned again";
  EXPECT_FALSE(std::filesystem::exists(world.dictionaryFolder().text()));
}

TEST(DictionaryCreation, aListThatWasNeverSetUpCreatesNothing) {
  DictionaryWorld world;
  DictController controller(world.services());
  bool isLoaded = true;
  EXPECT_FALSE(controller.createDictionary("n.eud2", isLoaded));
  EXPECT_TRUE(isLoaded);
  EXPECT_FALSE(controller.allDictionaries());
  EXPECT_FALSE(controller.selectedDictionary());
}

TEST(DictionaryCreation, aNewNameBeyondTheLimitIsMadeAndListedButNotLoaded) {
  DictionaryWorld world;
  const Names five{"a.eud2", "b.eud2", "c.eud2", "d.eud2", "e.eud2"};
  for (const std::string& name : five) world.put({name.c_str()});
  DictController controller = world.list(user);
  controller.updateDictionary(five);
  bool isLoaded = true;
  EXPECT_TRUE(controller.createDictionary("six.eud2", isLoaded));
  EXPECT_FALSE(isLoaded);
  EXPECT_TRUE(world.folder.exists("dictionaries/six.eud2"));
  EXPECT_FALSE(entryOf(controller, "six.eud2").check);
  EXPECT_EQ(loadedOf(controller), five);
  EXPECT_EQ(controller.notSelectedDictionary(), Names{"six.eud2"});
}

TEST(DictionaryCreation, roomCountsAsLoadedEvenWhenTheScanDropsTheFile) {
  DictionaryWorld world;
  DictController controller = world.list(memory);
  bool isLoaded = false;
  EXPECT_TRUE(controller.createDictionary("Terms.eud2", isLoaded));
  EXPECT_TRUE(isLoaded);
  EXPECT_TRUE(entryNames(controller).empty());
}

TEST(DictionaryCreation, codesComeWithTheNameAndNotAfterIt) {
  DictionaryWorld world;
  CountingFiles files(world.locations);
  DictController controller(world.servicesOver(files));
  controller.initializeDictController(user, world.dictionaryFolder(), JE);
  bool isLoaded = false;
  EXPECT_TRUE(controller.createDictionary("n.jud", isLoaded));
  EXPECT_EQ(files.copiedAs, "TRju    ");
  EXPECT_EQ(files.codesSetLater, 0);
}

TEST(DictionaryCreation, scanningAsksForAttributesOnlyWhereTheExtensionDoesNotDecide) {
  DictionaryWorld world;
  world.put({"a.TRet", "b.jtd", "c.dat", "d.eud2", "e.jud", "f.etm", "g.jtm"});
  CountingFiles files(world.locations);
  DictController controller(world.servicesOver(files));
  for (const DictionaryKind kind : {user, memory}) {
    controller.initializeDictController(kind, world.dictionaryFolder(), EJ);
  }
  EXPECT_EQ(files.attributeReads, 0);
  controller.initializeDictController(technical, world.dictionaryFolder(), EJ);
  EXPECT_EQ(files.attributeReads, 5);
}

TEST(DictionaryCreation, withoutATemplateNothingIsCopiedAndCreationCountsAsDone) {
  DictionaryWorld world;
  std::filesystem::remove_all(world.folder / "resources");
  DictController controller = world.list(user);
  bool isLoaded = false;
  EXPECT_TRUE(controller.createDictionary("n.eud2", isLoaded));
  EXPECT_TRUE(isLoaded);
  EXPECT_TRUE(world.folder.names("dictionaries").empty());
  EXPECT_FALSE(controller.selectedDictionary());
}

}  // namespace
}  // namespace tarvo::test
