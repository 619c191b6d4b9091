// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/new_dictionary.h"

#include <gtest/gtest.h>

#include "platform/text/text_rules.h"
#include "tests/dict/list_buttons.h"
#include "tests/dict/new_dictionary_fixture.h"
#include "tests/support/memory_files.h"

namespace tarvo::test {
namespace {

TEST_F(NewDictionaryTest, eachKindAndDirectionLandsInItsFolderAndSavesTheList) {
  struct Made {
    int tag;
    std::string path, table, content;
    int kind;
  };
  const Made cases[] = {{10, world_.userFolder() + "/N.eud2", "ejUDTable", DictionaryWorld::englishTemplate, 1},
                        {11, world_.userFolder() + "/N.jud", "jeUDTable", DictionaryWorld::japaneseTemplate, 1},
                        {12, world_.memoryFolder() + "/N.etm", "ejTMATable", DictionaryWorld::englishTemplate, 2},
                        {13, world_.memoryFolder() + "/N.jtm", "jeTMATable", DictionaryWorld::japaneseTemplate, 2}};
  for (const Made& made : cases) {
    create(made.tag, "N");
    EXPECT_EQ(world_.files.read(DiskPath(made.path)), made.content);
    Log log = world_.takeLog();
    ASSERT_EQ(log.size(), 5U);
    EXPECT_EQ(log[1], "posted " + lastPathComponent(made.path));
    EXPECT_EQ(log[3], "reload style." + made.table);
    EXPECT_EQ(log[4], "wrote");
    EXPECT_EQ(std::exchange(world_.changedKinds, {}), std::vector<int>{made.kind});
  }
  EXPECT_EQ(world_.listOnDisk(keyNameEJ), Array{"t.TRet"});
  EXPECT_EQ(world_.halfOnDisk(keyNameEJ).find("UD"), nullptr) << "a style never names the user's dictionaries";
}

TEST_F(NewDictionaryTest, updatesTheButtonsOfItsDirectionAfterTheSave) {
  for (const auto& [tag, isEJ] :
       {std::pair{10, true}, std::pair{11, false}, std::pair{12, true}, std::pair{13, false}}) {
    muddle(world_.outlets);
    world_.store.didWrite = [this] {
      EXPECT_EQ(ejButtons(world_.outlets), muddled);
      EXPECT_EQ(jeButtons(world_.outlets), muddled);
    };
    create(tag, "N");
    const Buttons updated{true, false, false, false};
    EXPECT_EQ(ejButtons(world_.outlets), isEJ ? updated : muddled) << tag;
    EXPECT_EQ(jeButtons(world_.outlets), isEJ ? muddled : updated) << tag;
  }
}

TEST_F(NewDictionaryTest, theSixthOfAListIsMadeAndToldToBeTooMany) {
  for (const auto& [tag, extension, alert] :
       {std::tuple{10, ".eud2", "alert MaxOverUDAlertHeader / MaxOverUDAlertContents"},
        std::tuple{13, ".jtm", "alert MaxOverUTMAAlertHeader / MaxOverUTMAAlertContents"}}) {
    for (const char* name : {"1", "2", "3", "4", "5"}) {
      create(tag, name);
      EXPECT_EQ(world_.takeLog().back(), "wrote");
    }
    create(tag, "6");
    const Log log = world_.takeLog();
    ASSERT_GE(log.size(), 3U);
    EXPECT_EQ(Log(log.end() - 3, log.end()), (Log{"wrote", "beep", alert}));
    EXPECT_TRUE(isThere((tag == 10 ? world_.userFolder() : world_.memoryFolder()) + "/6" + extension));
  }
}

TEST_F(NewDictionaryTest, inTheToolsWithListsOfTheirOwnTheStyleIsNotTouched) {
  struct Case {
    Tool chosen;
    int tag;
    std::string table;
  };
  constexpr Tool notepad = Tool::notepad, addins = Tool::officeAddins;
  for (const Case& tool :
       {Case{notepad, 10, "ejUDTableView"}, Case{notepad, 12, "ejTMATable"}, Case{addins, 10, "ejUDTable"},
        Case{addins, 12, "ejUTMATableView"}, Case{notepad, 11, "jeUDTableView"}, Case{notepad, 13, "jeTMATable"},
        Case{addins, 11, "jeUDTable"}, Case{addins, 13, "jeUTMATableView"}}) {
    world_.flags.saveHit = tool.chosen;
    world_.changedKinds.clear();
    muddle(world_.outlets);
    create(tool.tag, "T" + std::to_string(placeOf(tool.chosen)));
    const Log log = world_.takeLog();
    EXPECT_EQ(log.back(), "reload style." + tool.table);
    EXPECT_EQ(std::count(log.begin(), log.end(), "wrote"), 0);
    EXPECT_EQ(world_.changedKinds, std::vector<int>{tool.tag < 12 ? 1 : 2});
    EXPECT_EQ(ejButtons(world_.outlets), muddled) << "no button is looked at";
    EXPECT_EQ(jeButtons(world_.outlets), muddled);
  }
}

TEST_F(NewDictionaryTest, inThoseToolsAFullListIsNotTold) {
  for (const Tool tool : {Tool::notepad, Tool::officeAddins}) {
    world_.flags.saveHit = tool;
    const std::string prefix = std::to_string(placeOf(tool)) + "-";
    for (const char* name : {"1", "2", "3", "4", "5", "6"}) {
      create(10, prefix + name);
      create(13, prefix + name);
    }
    EXPECT_TRUE(isThere(world_.userFolder() + "/" + prefix + "6.eud2"));
    EXPECT_TRUE(isThere(world_.memoryFolder() + "/" + prefix + "6.jtm"));
    EXPECT_TRUE(world_.panels.alerts.empty()) << prefix;
  }
}

TEST_F(NewDictionaryTest, aFileThatCameBeforeIsLeftAloneAndTold) {
  world_.folder.write("Library/Application Support/Wordhaven/UserDic/N.eud2", "theirs");
  world_.request = {};
  world_.notifications.post(newDicNotification, "N.eud2");
  EXPECT_EQ(world_.takeLog(), (Log{"posted N.eud2", "reload style.ejUDTableView", "reload style.ejUDTable"}));
  EXPECT_EQ(world_.folder.read("Library/Application Support/Wordhaven/UserDic/N.eud2"), "theirs");
  EXPECT_EQ(world_.failures, (std::vector<Failure>{{world_.userFolder() + "/N.eud2", Attempt::create,
                                                    std::make_error_code(std::errc::file_exists)}}));
  EXPECT_TRUE(world_.changedKinds.empty());
}

TEST_F(NewDictionaryTest, aMissingFolderMakesNothingAndIsTold) {
  std::filesystem::remove_all(world_.userFolder());
  create(10, "N");
  EXPECT_EQ(world_.takeLog(),
            (Log{"sheet ended 1", "posted N.eud2", "reload style.ejUDTableView", "reload style.ejUDTable"}));
  EXPECT_FALSE(isThere(world_.userFolder()));
  ASSERT_EQ(world_.failures.size(), 1U);
  EXPECT_EQ(world_.failures[0].cause, std::errc::no_such_file_or_directory);
}

TEST_F(NewDictionaryTest, aTemplateThatTheProductLacksIsTold) {
  std::filesystem::remove(world_.folder / "resources/EJStationery.eud2");
  create(10, "N");
  EXPECT_FALSE(isThere(world_.userFolder() + "/N.eud2"));
  EXPECT_EQ(world_.failures, (std::vector<Failure>{{"EJStationery.eud2", Attempt::copy, Reason::missingResource}}));
}

TEST_F(NewDictionaryTest, aNotificationForAnotherKindIsIgnored) {
  world_.request.kind = std::nullopt;
  world_.notifications.post(newDicNotification, "Q.eud2");
  EXPECT_EQ(world_.takeLog(), Log{"posted Q.eud2"});
}

TEST_F(NewDictionaryTest, anEmptyNameIsNoDictionary) {
  world_.notifications.post(newDicNotification);
  EXPECT_EQ(world_.takeLog(), (Log{"posted ", "reload style.ejUDTableView", "reload style.ejUDTable"}));
  std::filesystem::remove_all(world_.userFolder());
  world_.notifications.post(newDicNotification);
  EXPECT_FALSE(isThere(world_.userFolder())) << "nor a file in the place of the folder";
}

TEST_F(NewDictionaryTest, thePickersNameIsMadeInThePanesKindAndDirection) {
  world_.newDictionary.newUD(12);
  world_.newDictionary.newDicCancelButtonAction();
  world_.controller.openJEList();
  world_.controller.newUD(2);
  world_.picker.newDicNameField.userType("P");
  world_.controller.newDicOKButtonAction();
  EXPECT_TRUE(isThere(world_.memoryFolder() + "/P.jud"));
  EXPECT_FALSE(isThere(world_.userFolder() + "/P.jud"));
}

TEST(NewDictionaryWithoutSetUp, postsReloadsAndMakesNothing) {
  PickerWorld world;
  world.openWithLists({"t.TRet"}, {});
  world.newDictionary.newUD(10);
  world.sheet.NewDicNameField.userType("N");
  world.takeLog();
  world.newDictionary.newDicOKButtonAction();
  EXPECT_EQ(world.takeLog(),
            (Log{"sheet ended 1", "posted N.eud2", "reload style.ejUDTableView", "reload style.ejUDTable"}));
  EXPECT_FALSE(world.folder.exists("Library"));
}

// A disk that refuses one operation.
class RefusingDisk : public testing::Test {
 protected:
  RefusingDisk() : world_(&disk_) {
    world_.openWithLists({"t.TRet"}, {});
    disk_.put(world_.folder / "resources/EJStationery.eud2", "empty");
    world_.userLists.setUp();
  }
  void create() {
    world_.newDictionary.newUD(10);
    world_.sheet.NewDicNameField.userType("N");
    world_.takeLog();
    world_.newDictionary.newDicOKButtonAction();
  }
  MemoryFiles disk_;
  PickerWorld world_;
};

TEST_F(RefusingDisk, aCopyThatFailsLeavesNoPartOfADictionaryAndSavesNothing) {
  disk_.refuse(MemoryFiles::Operation::copy);
  const std::vector<std::string> before = disk_.paths();
  create();
  EXPECT_EQ(disk_.paths(), before);
  const Log log = world_.takeLog();
  EXPECT_EQ(std::count(log.begin(), log.end(), "wrote"), 0);
  EXPECT_TRUE(world_.panels.alerts.empty());
  EXPECT_TRUE(world_.changedKinds.empty());
  EXPECT_EQ(world_.failures.size(), 1U);

  disk_.allowAll();
  create();
  EXPECT_EQ(disk_.bytes(world_.userFolder() + "/N.eud2"), "empty") << "the name is free for another try";
  EXPECT_EQ(world_.takeLog().back(), "wrote");
  EXPECT_EQ(world_.failures.size(), 1U);
}

TEST_F(RefusingDisk, aDiskWithoutCodesKeepsTheDictionary) {
  disk_.refuse(MemoryFiles::Operation::setCodes);
  create();
  EXPECT_EQ(disk_.bytes(world_.userFolder() + "/N.eud2"), "empty");
  EXPECT_EQ(world_.takeLog().back(), "wrote");
}

}  // namespace
}  // namespace tarvo::test
