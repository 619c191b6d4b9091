// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/posix/posix_files.h"
#include "tests/dict/dictionary_world.h"

namespace tarvo::test {
namespace {

const char* const commonKeys[] = {"EJCommonUD", "JECommonUD", "EJCommonUTMA", "JECommonUTMA"};

TEST(CommonDictionaries, aMissingOneComesBackEmptyWhenAListNamesIt) {
  for (const char* key : commonKeys) {
    for (const Direction direction : bothDirections) {
      DictionaryWorld world;
      world.setText(key, "Common.TRet");
      world.put({"a.TRet"});
      DictController controller = world.list(technical, direction);
      controller.updateDictionary({"COMMON.TRet", "a.TRet"});
      EXPECT_EQ(contentOf(world, "COMMON.TRet"),
                direction == EJ ? DictionaryWorld::englishTemplate : DictionaryWorld::japaneseTemplate)
          << key;
      EXPECT_EQ(loadedOf(controller), (Names{"COMMON.TRet", "a.TRet"})) << key;
      EXPECT_EQ(entryOf(controller, "a.TRet").order, 1) << key;
    }
  }
}

TEST(CommonDictionaries, anyOtherMissingNameIsNotMade) {
  DictionaryWorld world;
  DictController controller = world.list();
  EXPECT_FALSE(controller.isExitsDic("gone.TRet"));
  controller.updateDictionary({"gone.TRet"});
  EXPECT_TRUE(world.folder.names("dictionaries").empty());
}

TEST(CommonDictionaries, canBeAskedForWithoutBeingMade) {
  DictionaryWorld world;
  world.setText("EJCommonUD", "Common.TRet");
  world.folder.write("dictionaries/a.TRet", "");
  const DictController controller = world.list();
  EXPECT_FALSE(controller.isExitsDic2("Common.TRet"));
  EXPECT_FALSE(world.folder.exists("dictionaries/Common.TRet"));
  EXPECT_TRUE(controller.isExitsDic2("A.tret"));
}

TEST(CommonDictionaries, askingForAMissingOneMakesItAndLoadsIt) {
  DictionaryWorld world;
  world.setText("EJCommonUD", "Common.TRet");
  DictController controller = world.list();
  EXPECT_TRUE(controller.isExitsDic("Common.TRet"));
  EXPECT_TRUE(world.folder.exists("dictionaries/Common.TRet"));
  EXPECT_EQ(loadedOf(controller), Names{"Common.TRet"});
}

TEST(CommonDictionaries, withTheTemplateMissingTooTheNameIsSkippedAndTheLookEnds) {
  DictionaryWorld world;
  world.setText("EJCommonUD", "Common.TRet");
  world.setText("JECommonUD", "Other.TRet");
  std::filesystem::remove_all(world.folder / "resources");
  world.put({"a.TRet", "b.TRet"});
  DictController controller = world.list();
  controller.updateDictionary({"a.TRet", "common.TRet", "Other.TRet", "Common.TRet", "b.TRet"});
  EXPECT_EQ(loadedOf(controller), (Names{"a.TRet", "b.TRet"}));
  EXPECT_EQ(entryOf(controller, "b.TRet").order, 4);
  EXPECT_TRUE(controller.isExitsDic("Common.TRet")) << "creation counts as done";
  EXPECT_EQ(world.folder.names("dictionaries"), (Names{"a.TRet", "b.TRet"}));
}

TEST(CommonDictionaries, aTextWithoutExtensionMakesAFileThatIsNoEntry) {
  DictionaryWorld world;
  world.setText("EJCommonUD", "Common Dictionary");
  DictController controller = world.list(user);
  controller.updateDictionary({"Common Dictionary"});
  EXPECT_EQ(contentOf(world, "Common Dictionary"), DictionaryWorld::englishTemplate);
  EXPECT_TRUE(entryNames(controller).empty());
  EXPECT_FALSE(controller.selectedDictionary());
}

}  // namespace
}  // namespace tarvo::test
