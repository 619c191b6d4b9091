// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_lists.h"

#include "tests/install/addin_world.h"

namespace tarvo::test {
namespace {

using namespace addin_keys;

class AddinListsTest : public testing::Test, protected AddinWorld {
 protected:
  static std::string folderOf(const AddinLists::SharedEntry& entry) { return addinText(*entry, installFolderPath); }
  Rows candidates() const {
    Rows all;
    for (const AddinLists::SharedEntry& entry : lists.fOfficeArray()) all.push_back(addinText(*entry, appName));
    return all;
  }
  // As an earlier run remembered it.
  static AddinEntry remembered(const AddinEntry& entry) {
    return with(with(entry, installFolderPath, installFolder(entry)), installStatus, true);
  }
};

TEST_F(AddinListsTest, takeTheShippedRecordsWithMailFoldersBelowTheHome) {
  ship({word2011(), appleMail(), outlook2011()});
  ASSERT_TRUE(lists.loadAddinPlist());
  EXPECT_EQ(candidates(), (Rows{"Word 2011", "Mail", "Outlook 2011"}));
  for (const auto* entries : {&lists.fOfficeArray(), &*lists.fDefaultOfficeSetArray()}) {
    EXPECT_EQ(folderOf((*entries)[0]), "/Applications/O11/Office/Startup/Word");
    EXPECT_EQ(folderOf((*entries)[1]), "/Users/taro/Library/Scripts/Applications/Mail");
    EXPECT_EQ(folderOf((*entries)[2]), "/Users/taro/Library/Scripts/Outlook");
  }
  EXPECT_EQ(lists.fOfficeArray()[1], (*lists.fDefaultOfficeSetArray())[1]) << "one record, not two";
}

TEST_F(AddinListsTest, joinHomeAndFolderWithOneSlash) {
  ship({with(appleMail(), installFolderPath, "/Library/Scripts")});
  ASSERT_TRUE(lists.loadAddinPlist());
  EXPECT_EQ(folderOf(lists.fOfficeArray()[0]), "/Users/taro/Library/Scripts");
}

TEST_F(AddinListsTest, addOnlyOutlookAndEntourageToARememberedList) {
  ship({word2011(), excel2011(), appleMail(), outlook2011()});
  remember({remembered(word2011())});
  ASSERT_TRUE(lists.loadAddinPlist());
  EXPECT_EQ(candidates(), (Rows{"Word 2011", "Outlook 2011"}));
  EXPECT_EQ(folderOf(lists.fOfficeArray()[1]), "/Users/taro/Library/Scripts/Outlook");
  EXPECT_EQ(addinText(*(*lists.fDefaultOfficeSetArray())[2], installFolderPath), "Library/Scripts/Applications/Mail")
      << "a record that did not join stays as shipped";
}

TEST_F(AddinListsTest, addNoOutlookThatIsRememberedAlready) {
  ship({outlook2011(), entourage2004()});
  remember({remembered(outlook2011())});
  ASSERT_TRUE(lists.loadAddinPlist());
  EXPECT_EQ(candidates(), (Rows{"Outlook 2011", "Entourage 2004"}));
  EXPECT_EQ(folderOf((*lists.fDefaultOfficeSetArray())[0]), "Library/Scripts/Outlook") << "not made absolute";
}

TEST_F(AddinListsTest, giveTheShippedRecordTheHomeWhenOutlookJoinsARememberedList) {
  ship({word2011(), outlook2011(), appleMail()});
  remember({word2011()});
  ASSERT_TRUE(lists.loadAddinPlist());
  const auto& shipped = *lists.fDefaultOfficeSetArray();
  EXPECT_EQ(lists.fOfficeArray().back(), shipped[1]) << "the same record, not one like it";
  EXPECT_EQ(addinText(*shipped[1], installFolderPath), "/Users/taro/Library/Scripts/Outlook");
  EXPECT_EQ(addinText(*shipped[2], installFolderPath), "Library/Scripts/Applications/Mail") << "did not join";
}

TEST_F(AddinListsTest, compareOutlooksPathExactly) {
  ship({outlook2011()});
  remember({with(remembered(outlook2011()), appPath, "/Applications/O11/OUTLOOK.app")});
  ASSERT_TRUE(lists.loadAddinPlist());
  EXPECT_EQ(lists.fOfficeArray().size(), 2U);
}

TEST_F(AddinListsTest, countAnEmptyRememberedListAsOne) {
  ship({word2011(), appleMail(), entourage2004()});
  remember({});
  ASSERT_TRUE(lists.loadAddinPlist());
  EXPECT_EQ(candidates(), Rows{"Entourage 2004"});
}

TEST_F(AddinListsTest, readARememberedValueOfAnotherKindAsNone) {
  ship({word2011()});
  defaults.set("Office", "text");
  ASSERT_TRUE(lists.loadAddinPlist());
  EXPECT_EQ(candidates(), Rows{"Word 2011"});
}

TEST_F(AddinListsTest, skipWhatIsNoRecordAndReadAMissingKeyAsNothing) {
  ship({word2011()});
  setUp({word2011()});
  defaults.set("Office",
               Array{PropertyList(7), PropertyList("x"), PropertyList(Dictionary()), PropertyList(word2011())});
  ASSERT_TRUE(lists.searchOfficeApplication());
  EXPECT_EQ(lists.fOfficeArray().size(), 2U);
  EXPECT_EQ(names(lists.fOfficeAddinArray()), Rows{"Word 2011"});
}

TEST_F(AddinListsTest, haveNothingToGoOnWithoutAnyList) {
  const std::string path = folder / "resources/DefaultAddin.plist";
  EXPECT_EQ(lists.searchOfficeApplication().error(), (Failure{path, Attempt::read, Reason::missingResource}));
  folder.write("resources/DefaultAddin.plist", "damaged");
  EXPECT_EQ(lists.searchOfficeApplication().error(), (Failure{path, Attempt::read, Reason::noPropertyList}));
  folder.write("resources/DefaultAddin.plist", writePropertyList(Dictionary()));
  EXPECT_EQ(lists.searchOfficeApplication().error(), (Failure{path, Attempt::read, Reason::damaged}));
  EXPECT_FALSE(lists.fDefaultOfficeSetArray());
}

TEST_F(AddinListsTest, areContentWithARememberedListAlone) {
  setUp({word2011()});
  remember({word2011()});
  ASSERT_TRUE(lists.searchOfficeApplication());
  EXPECT_EQ(names(lists.fOfficeAddinArray()), Rows{"Word 2011"});
  EXPECT_FALSE(lists.fDefaultOfficeSetArray());
}

TEST_F(AddinListsTest, listOnlyApplicationsThatAreThere) {
  ship({word2011(), excel2011()});
  setUp({word2011()});
  ASSERT_TRUE(start());
  ASSERT_EQ(names(lists.fOfficeAddinArray()), Rows{"Word 2011"});
  EXPECT_TRUE(lists.fOfficeAddinArray()[0].contains(installStatus));
  EXPECT_FALSE((*lists.fDefaultOfficeSetArray())[0]->contains(installStatus)) << "rows are copies";
  EXPECT_EQ(outlets.officeTableView.numberOfRows(), 1);
}

TEST_F(AddinListsTest, listAMailProgramOnlyWithItsScriptFolder) {
  ship({appleMail(), outlook2011()});
  setUp({outlook2011()});
  folder.makeFolder(inRoot("/Applications/Mail.app"));
  ASSERT_TRUE(start());
  EXPECT_EQ(names(lists.fMailAddinArray()), Rows{"Outlook 2011"});
  EXPECT_EQ(outlets.mailTableView.numberOfRows(), 1);
  ship({with(appleMail(), installFolderPath, "Library/Scripts/Mail Scripts"), outlook2011()});
  ASSERT_TRUE(lists.searchOfficeApplication(AddinLists::MailFolder::asAStartMakesIt));
  EXPECT_EQ(names(lists.fMailAddinArray()), (Rows{"Mail", "Outlook 2011"}));
}

TEST_F(AddinListsTest, keepTheOrderOfTheCandidatesAndShowUnknownCreatorsAsOffice) {
  const AddinEntry unknown = with(with(word2008(), appCreator, "????"), appName, "Unknown");
  ship({outlook2011(), word2011(), unknown, appleMail(), excel2011()});
  setUp({outlook2011(), word2011(), unknown, appleMail(), excel2011()});
  ASSERT_TRUE(lists.searchOfficeApplication());
  EXPECT_EQ(names(lists.fOfficeAddinArray()), (Rows{"Word 2011", "Unknown", "Excel 2011"}));
  EXPECT_EQ(names(lists.fMailAddinArray()), (Rows{"Outlook 2011", "Mail"}));
}

TEST_F(AddinListsTest, buildTheRowsAnewEachTime) {
  ship({word2011(), appleMail()});
  setUp({word2011(), appleMail()});
  ASSERT_TRUE(lists.searchOfficeApplication());
  ASSERT_TRUE(lists.searchOfficeApplication());
  EXPECT_EQ(lists.fOfficeAddinArray().size(), 1U);
  EXPECT_EQ(lists.fMailAddinArray().size(), 1U);
}

TEST_F(AddinListsTest, takeTheStateFromWhateverHasTheItemsName) {
  const std::string place = inRoot(installFolder(word2011()));
  setUp({word2011()});
  for (const char* macro : {"Macros/2011/Tarvo.dotm", "Tarvo.dotm"}) {
    const AddinEntry entry = with(word2011(), installMacroName, macro);
    EXPECT_FALSE(lists.getInstallStatus(entry));
    folder.write(place + "/Tarvo.dotm", "");
    EXPECT_TRUE(lists.getInstallStatus(entry));
    ASSERT_TRUE(disk.remove(real(installFolder(word2011()) + "/Tarvo.dotm")));
    folder.makeFolder(place + "/Tarvo.dotm");
    EXPECT_TRUE(lists.getInstallStatus(entry)) << "a folder counts";
    ASSERT_TRUE(disk.remove(real(installFolder(word2011()) + "/Tarvo.dotm")));
  }
  folder.makeFolder(place + "/Scripts");
  EXPECT_TRUE(lists.getInstallStatus(with(word2011(), installMacroName, "Mail/Scripts/")));
}

TEST_F(AddinListsTest, replaceWhatWasRememberedAboutTheState) {
  setUp({word2011()});
  remember({remembered(word2011())});
  ASSERT_TRUE(lists.searchOfficeApplication());
  EXPECT_FALSE(isMarkedInstalled(lists.fOfficeAddinArray()[0]));
}

TEST_F(AddinListsTest, rememberTheRowsOfficeFirst) {
  const AddinEntry extra = with(word2011(), "Note", "of another tool");
  ship({outlook2011(), extra, excel2011()});
  setUp({outlook2011(), extra, excel2011()});
  ASSERT_TRUE(lists.searchOfficeApplication());
  lists.storeRows();
  const UserDefaults next(disk, real(settings));
  const Array& stored = *next.find("Office")->array();
  ASSERT_EQ(stored.size(), 3U);
  EXPECT_EQ(*stored[0].dictionary(), with(extra, installStatus, false)) << "keys of others stay";
  EXPECT_EQ(*stored[1].dictionary()->string(appName), "Excel 2011");
  EXPECT_EQ(*stored[2].dictionary()->string(installFolderPath), "/Users/taro/Library/Scripts/Outlook");
  EXPECT_EQ(candidates(), (Rows{"Word 2011", "Excel 2011", "Outlook 2011"}));
}

TEST_F(AddinListsTest, rememberThatThereIsNothing) {
  ship({word2011()});
  ASSERT_TRUE(lists.searchOfficeApplication());
  lists.storeRows();
  EXPECT_EQ(*UserDefaults(disk, real(settings)).find("Office"), PropertyList(Array()));
}

TEST_F(AddinListsTest, forgetAnApplicationThatWasAwayOnce) {
  ship({word2011(), excel2011()});
  setUp({word2011(), excel2011()});
  ASSERT_TRUE(lists.searchOfficeApplication());
  lists.storeRows();
  ASSERT_TRUE(disk.remove(real("/Applications/O11/Word.app")));
  for (int run = 0; run < 2; ++run) {
    ASSERT_TRUE(lists.searchOfficeApplication());
    EXPECT_EQ(names(lists.fOfficeAddinArray()), Rows{"Excel 2011"});
    EXPECT_EQ(names(lists.forgotten()), run == 0 ? Rows() : Rows{"Word 2011"}) << "forgotten once it is back";
    lists.storeRows();
    setUp({word2011()});
  }
  defaults.remove("Office");
  ASSERT_TRUE(lists.searchOfficeApplication());
  EXPECT_EQ(names(lists.fOfficeAddinArray()), (Rows{"Word 2011", "Excel 2011"})) << "back once the list is forgotten";
  EXPECT_EQ(names(lists.forgotten()), Rows());
}

}  // namespace
}  // namespace tarvo::test
