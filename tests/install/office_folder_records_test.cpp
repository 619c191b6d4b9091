// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/install/folder_search_fixture.h"

namespace tarvo::test {
namespace {

using namespace addin_keys;

TEST_F(FolderSearch, leavesOutOtherEditions) {
  application("Word.app", "APPL", "MSWD");
  for (const char* version : {"12.1", "15.0", "13.9", "140"}) {
    scripts.answer = version;
    searchFolder();
    EXPECT_TRUE(lists.fOfficeAddinArray().empty()) << version;
  }
  EXPECT_FALSE(offer(word2008(), 14, "MSWD")) << "a record of another year";
  EXPECT_TRUE(lists.fOfficeAddinArray().empty());
}

TEST_F(FolderSearch, leavesOutWhatNoRecordKnows) {
  EXPECT_FALSE(offer(word2011(), 14, "XCEL"));
  EXPECT_FALSE(offer(word2011(), 14, ""));
  EXPECT_FALSE(offer(word2011(), 14, "mswd"));
  EXPECT_FALSE(offer(with(appleMail(), appVersion, "2011"), 14, "emal"));
  EXPECT_FALSE(offer(with(word2011(), appCreator, "MSDC"), 14, "MSDC"));
  AddinEntry nobodys = word2011();
  nobodys.remove(appCreator);
  EXPECT_FALSE(offer(nobodys, 14, "")) << "two missing texts are no match";
  EXPECT_TRUE(lists.fOfficeAddinArray().empty());
  EXPECT_TRUE(lists.fMailAddinArray().empty());
}

TEST_F(FolderSearch, knowsEachOfTheThreeOfficePrograms) {
  for (const char* creator : {"MSWD", "XCEL", "PPT3"}) {
    ASSERT_TRUE(start());
    EXPECT_TRUE(offer(with(word2011(), appCreator, creator), 14, creator)) << creator;
    EXPECT_EQ(placeOf(lists.fOfficeAddinArray().at(0)), "/Volumes/D/Office/Office/Startup/Word");
  }
}

TEST_F(FolderSearch, putsOutlooksScriptsBelowTheHome) {
  folder.makeFolder(inRoot("/Users/taro/Library/Scripts/Outlook"));
  ship({with(outlook2011(), installFolderName, "/Other/Outlook")});
  ASSERT_TRUE(start());
  application("Outlook.app", "APPL", "OPIM");
  searchFolder();
  ASSERT_EQ(lists.fMailAddinArray().size(), 1U);
  EXPECT_EQ(pathOf(lists.fMailAddinArray()[0]), "/Volumes/D/Office/Outlook.app");
  EXPECT_EQ(placeOf(lists.fMailAddinArray()[0]), "/Users/taro/Other/Outlook") << "the chosen folder has no part in it";
  EXPECT_EQ(lists.fMailAddinArray()[0].find(installStatus)->boolean() != nullptr, true);
  EXPECT_EQ(outlets.mailTableView.numberOfRows(), 1);
}

TEST_F(FolderSearch, addsOutlookAnewAtEachSearch) {
  folder.makeFolder(inRoot("/Users/taro/Library/Scripts/Outlook"));
  application("Outlook.app", "APPL", "OPIM");
  searchFolder();
  searchFolder();
  EXPECT_EQ(lists.fMailAddinArray().size(), 2U) << "only the shipped place is refused, and only beside other rows";
}

TEST_F(FolderSearch, refusesOutlookInItsUsualPlaceOnlyBesideOtherRows) {
  folder.makeFolder(inRoot("/Users/taro/Library/Scripts/Outlook"));
  const AddinEntry shipped = with(*(*lists.fDefaultOfficeSetArray())[2], appPath, chosen + "/App.app");
  EXPECT_TRUE(offer(shipped, 14, "OPIM"));
  EXPECT_EQ(lists.fMailAddinArray().size(), 1U);
  EXPECT_FALSE(offer(shipped, 14, "OPIM"));
  EXPECT_EQ(lists.fMailAddinArray().size(), 1U);
}

TEST_F(FolderSearch, answersYesForOutlookWithoutAScriptFolderAndAddsNothing) {
  EXPECT_TRUE(offer(*(*lists.fDefaultOfficeSetArray())[2], 14, "OPIM"));
  EXPECT_TRUE(lists.fMailAddinArray().empty());
}

TEST_F(FolderSearch, takesAnOutlookThatIsRememberedForOneWithoutAScriptFolder) {
  // It did not join the remembered list, so its folder was never made absolute.
  folder.makeFolder(inRoot("/Users/taro/Library/Scripts/Outlook"));
  remember({outlook2011()});
  ASSERT_TRUE(start());
  EXPECT_TRUE(offer(*(*lists.fDefaultOfficeSetArray())[2], 14, "OPIM"));
  EXPECT_TRUE(lists.fMailAddinArray().empty());
}

}  // namespace
}  // namespace tarvo::test
