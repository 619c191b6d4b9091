// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/unread_folders.h"

#include "platform/services/machine_texts.h"
#include "tests/dict/style_pane_world.h"
#include "tests/support/faulty_files.h"

namespace tarvo::test {
namespace {

// A disk that cannot read the names of a folder, or the type code of one file, until it can again.
class UnreadableFiles : public FaultyFiles {
 public:
  explicit UnreadableFiles(FileService& disk) : FaultyFiles(disk) {}
  Result<std::vector<std::string>> list(const DiskPath& path) const override {
    if (path == folder) return Failure{path.text(), Attempt::list, cause};
    return FaultyFiles::list(path);
  }
  Result<FourCharCode> typeCode(const DiskPath& path) const override {
    if (path == file) return Failure{path.text(), Attempt::look, cause};
    return FaultyFiles::typeCode(path);
  }
  Result<std::string> read(const DiskPath& path) const override {
    return path == DiskPath(machineTexts) ? table : FaultyFiles::read(path);
  }
  Result<std::string> table = Failure{machineTexts, Attempt::read, std::make_error_code(std::errc::io_error)};
  DiskPath folder, file;
  std::error_code cause = std::make_error_code(std::errc::io_error);
};

struct UnreadFoldersTest : testing::Test, StylePaneWorld {
  UnreadFoldersTest() {
    for (const char* key : {"DictionariesUnread", "ListNotChanged"}) setText(key, std::string(key) + " %@");
    unread.tell = [this](const std::string& sentence) { told.push_back(sentence.substr(0, sentence.find(' '))); };
    openWithLists({"a.TRet", "b", "c.TRet"}, {"j.TRet"});
    EXPECT_TRUE(files.setCodes(folder.at("dictionaries/b"), fourCharCode("TRjt"), fourCharCode("    ")));
    lists.setUp(EJ, dictionaryFolder());
    lists.getActiveDictController(EJ).updateDictionary({"a.TRet", "b", "c.TRet"});
    lists.setUp(JE, folder.at("japanese"));
    lists.getActiveDictController(JE).updateDictionary({"j.TRet"});
    outlets.ejTDTable.setDataSource(&rows);
    outlets.ejTDTable.reloadData();
  }
  Names shown() { return loadedOf(lists.ejTDController()); }

  UnreadableFiles faulty{files};
  DictionaryListEditing lists{store, menu.stylePopup, outlets, texts, servicesOver(faulty), guard, unread};
  DictionaryTable rows{lists, texts};
  Names told;
};

TEST_F(UnreadFoldersTest, aFolderThatCannotBeListedAnswersAsAnEmptyOneAndSaysWhy) {
  faulty.folder = dictionaryFolder();
  lists.rescan(EJ);
  EXPECT_EQ(shown(), Names{});
  EXPECT_FALSE(lists.ejTDController().selectedDictionary());
  ASSERT_TRUE(lists.ejTDController().unread());
  EXPECT_EQ(lists.ejTDController().unread()->path, dictionaryFolder().text());
}

TEST_F(UnreadFoldersTest, aFolderThatIsNotThereIsAnEmptyOne) {
  faulty.folder = dictionaryFolder();
  faulty.cause = std::make_error_code(std::errc::no_such_file_or_directory);
  lists.rescan(EJ);
  EXPECT_FALSE(lists.ejTDController().unread());
  EXPECT_EQ(outlets.ejTDTable.placeholder(), "");
  EXPECT_EQ(told, Names{});
}

TEST_F(UnreadFoldersTest, whatWasLoadedIsLoadedAgainWhenTheFolderCanBeRead) {
  faulty.folder = dictionaryFolder();
  lists.rescan(EJ);
  lists.rescan(EJ);
  lists.ejTDController().updateDictionary({"c.TRet", "a.TRet"});  // another style is shown meanwhile
  faulty.folder = {};
  lists.rescan(EJ);
  EXPECT_EQ(shown(), (Names{"c.TRet", "a.TRet"}));
  EXPECT_EQ(outlets.ejTDTable.numberOfRows(), 2);
}

TEST_F(UnreadFoldersTest, aStyleWithoutAListBringsNoneOfAnotherBack) {
  faulty.folder = dictionaryFolder();
  lists.rescan(EJ);
  lists.ejTDController().clearInformation();
  faulty.folder = {};
  lists.rescan(EJ);
  EXPECT_EQ(shown(), Names{});
}

TEST_F(UnreadFoldersTest, aTypeCodeThatCannotBeReadLeavesTheOthersAndRefusesEveryEdit) {
  faulty.file = folder.at("dictionaries/b");
  lists.rescan(EJ);
  EXPECT_EQ(shown(), (Names{"a.TRet", "c.TRet"}));
  outlets.ejTDTable.reloadData();
  outlets.ejTDTable.selectRows({1});
  told.clear();
  lists.raiseUpTD(0);
  lists.raiseDownTD(0);
  outlets.ejTDTable.selectRows({0});
  lists.raiseDownTD(0);
  lists.removeTD(0);
  lists.writeUpdateDicTarvoPlist(EJ);
  EXPECT_EQ(told, Names(4, "ListNotChanged"));
  EXPECT_EQ(writes, 0);
  EXPECT_EQ(shown(), (Names{"a.TRet", "c.TRet"}));
  EXPECT_EQ(listOnDisk("EJ"), (Array{"a.TRet", "b", "c.TRet"}));
  EXPECT_EQ(changedKinds, std::vector<int>{});
}

TEST_F(UnreadFoldersTest, aListStaysOutOfReachWhileNobodyKnowsWhichMedicalDictionariesAreInstalled) {
  put({"cwl.TRet"});
  texts.clear();
  lists.rescan(EJ);
  ASSERT_TRUE(lists.ejTDController().unread());
  EXPECT_EQ(lists.ejTDController().unread()->path, machineTexts);
  faulty.table = "<plist><dict><key>TechECorwell6</key><string>" + folder / "data" + "</string></dict></plist>";
  lists.rescan(EJ);
  EXPECT_FALSE(lists.ejTDController().unread());
  EXPECT_EQ(lists.ejTDController().notSelectedDictionary(), Names{}) << "it is not installed";
  folder.write("data", "");
  lists.rescan(EJ);
  EXPECT_EQ(lists.ejTDController().notSelectedDictionary(), Names{"cwl.TRet"});
  EXPECT_EQ(shown(), (Names{"a.TRet", "b", "c.TRet"}));
}

TEST_F(UnreadFoldersTest, rowsAreDroppedNeitherIntoNorUnderAListThatIsOutOfReach) {
  faulty.file = folder.at("dictionaries/b");
  lists.rescan(EJ);
  outlets.ejTDTable.reloadData();
  told.clear();
  Pasteboard dragged;
  dragged.content.set("row", Array{1});
  EXPECT_FALSE(rows.acceptDrop(outlets.ejTDTable, dragged, 0, DropOperation::above));
  outlets.jeTDTable.setDataSource(&rows);
  dragged.content.set("row", Array{0});
  EXPECT_FALSE(rows.acceptDrop(outlets.jeTDTable, dragged, 1, DropOperation::above)) << "the shown tab is saved";
  EXPECT_EQ(told, Names(2, "ListNotChanged"));
  EXPECT_EQ(writes, 0);
  EXPECT_EQ(shown(), (Names{"a.TRet", "c.TRet"}));
}

TEST_F(UnreadFoldersTest, aFolderAmongTheDictionariesThatLetsNobodyLookIsNoReason) {
  folder.makeFolder("dictionaries/lost+found");
  faulty.file = folder.at("dictionaries/lost+found");
  lists.rescan(EJ);
  EXPECT_FALSE(lists.ejTDController().unread());
  EXPECT_EQ(shown(), (Names{"a.TRet", "b", "c.TRet"}));
}

TEST_F(UnreadFoldersTest, eachFolderIsToldOnceUntilItCanBeReadOrFailsOtherwise) {
  faulty.folder = dictionaryFolder();
  lists.rescan(EJ);
  lists.rescan(EJ);
  EXPECT_EQ(told.size(), 1U);
  faulty.cause = std::make_error_code(std::errc::permission_denied);
  lists.rescan(EJ);
  EXPECT_EQ(told.size(), 2U);
  faulty.folder = {};
  lists.rescan(EJ);
  faulty.folder = dictionaryFolder();
  lists.rescan(EJ);
  EXPECT_EQ(told, Names(3, "DictionariesUnread"));
}

TEST_F(UnreadFoldersTest, aTableShowsWhyInsteadOfItsRows) {
  faulty.file = folder.at("dictionaries/b");
  lists.rescan(EJ);
  outlets.ejTDTable.reloadData();
  EXPECT_EQ(outlets.ejTDTable.placeholder().substr(0, 18), "DictionariesUnread");
  EXPECT_EQ(outlets.ejTDTable.numberOfRows(), 2);
  EXPECT_FALSE(outlets.ejTDTable.isRowShown(0));
  faulty.file = {};
  lists.rescan(EJ);
  EXPECT_EQ(outlets.ejTDTable.placeholder(), "");
  EXPECT_TRUE(outlets.ejTDTable.isRowShown(2));
}

TEST_F(UnreadFoldersTest, aNameInOtherLetterCaseStaysLoadedWhereTheFolderCanBeListedNoMore) {
  faulty.folder = dictionaryFolder();
  lists.ejTDController().updateDictionary({"A.tret", "C.TRET"});
  EXPECT_EQ(shown(), (Names{"a.TRet", "c.TRet"}));
}

}  // namespace
}  // namespace tarvo::test
