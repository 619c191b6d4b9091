// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/user_lists.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/dict/dictionary_world.h"

namespace tarvo::test {
namespace {

const std::string dictionaries = "Library/Application Support/Wordhaven/UserDic";
const std::string memories = "Library/Application Support/Wordhaven/UserTMA";

TEST(UserLists, showWhatLiesInTheTwoFoldersByDirection) {
  DictionaryWorld world;
  for (const char* name : {"b.eud2", "a.eud2", "j.jud", "m.etm"}) world.folder.write(dictionaries + "/" + name, "");
  for (const char* name : {"m.etm", "n.jtm", "a.eud2"}) world.folder.write(memories + "/" + name, "");
  UserLists lists(world.services());
  lists.setUp();
  EXPECT_EQ(lists.ejUDController.getAllDictionary(), (Names{"a.eud2", "b.eud2"}));
  EXPECT_EQ(lists.jeUDController.getAllDictionary(), Names{"j.jud"});
  EXPECT_EQ(lists.ejUTMAController.getAllDictionary(), Names{"m.etm"});
  EXPECT_EQ(lists.jeUTMAController.getAllDictionary(), Names{"n.jtm"});
}

TEST(UserLists, missingFoldersAreMadeOpenToEverybody) {
  DictionaryWorld world;
  const mode_t before = ::umask(022);
  UserLists lists(world.services());
  lists.setUp();
  ::umask(before);
  for (const std::string& folder : {std::string("Library"), dictionaries, memories}) {
    EXPECT_EQ(world.folder.mode(folder), 0777U) << folder;
  }
}

TEST(UserLists, foldersThatAreThereKeepTheirMode) {
  DictionaryWorld world;
  world.folder.makeFolder(dictionaries);
  ASSERT_EQ(::chmod((world.folder / dictionaries).c_str(), 0700), 0);
  UserLists lists(world.services());
  lists.setUp();
  EXPECT_EQ(world.folder.mode(dictionaries), 0700U);
}

TEST(UserLists, withoutSetUpNothingIsMadeAndNothingCanBeCreated) {
  DictionaryWorld world;
  UserLists lists(world.services());
  bool isLoaded = false;
  for (DictController* list :
       {&lists.ejUDController, &lists.jeUDController, &lists.ejUTMAController, &lists.jeUTMAController}) {
    EXPECT_FALSE(list->createDictionary("n", isLoaded));
    EXPECT_FALSE(list->allDictionaries());
  }
  EXPECT_FALSE(world.folder.exists("Library"));
}

TEST(UserLists, aPlainFileInTheWayLeavesTheListsEmpty) {
  DictionaryWorld world;
  world.folder.write(dictionaries, "in the way");
  UserLists lists(world.services());
  lists.setUp();
  EXPECT_EQ(lists.ejUDController.getAllDictionary(), Names{});
  EXPECT_EQ(world.folder.read(dictionaries), "in the way");
}

}  // namespace
}  // namespace tarvo::test
