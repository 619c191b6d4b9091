// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/old_scripts.h"

#include "tests/install/addin_world.h"

namespace tarvo::test {
namespace {

using namespace addin_keys;

class OldScriptsTest : public testing::Test, protected AddinWorld {
 protected:
  OldScriptsTest() { ship({outlook2011(), appleMail(), entourage2004()}); }
  // An earlier generation's scripts: the folder by which they are known, and the scripts that go.
  void leaveOld(const AddinEntry& entry, const char* knownBy) const {
    const std::string base = inRoot(std::string(home) + "/" + addinText(entry, installFolderName));
    folder.makeFolder(base + "/«" + knownBy + "»");
    folder.write(base + "/Tarvo/old.scpt", "");
  }
  bool isLeft(const AddinEntry& entry) const {
    return folder.exists(inRoot(std::string(home) + "/" + addinText(entry, installFolderName) + "/Tarvo"));
  }
  void launch() {
    ASSERT_TRUE(start());
    old.OldscriptUninstall();
  }
  OldScripts old{{files, panels, texts}, lists, mailScripts, locations.home()};
};

constexpr const char* mailName = "MailTarvoFolderName";
constexpr const char* outlookName = "Outlook2011TarvoFolderName";
constexpr const char* entourageName = "Entourage2004TarvoFolderName";

TEST_F(OldScriptsTest, areRemovedAndToldTogetherInOneOrder) {
  leaveOld(appleMail(), mailName);
  leaveOld(outlook2011(), outlookName);
  launch();
  EXPECT_FALSE(isLeft(appleMail()));
  EXPECT_FALSE(isLeft(outlook2011()));
  EXPECT_EQ(log, (Log{"beep",
                      "alert «OldScriptIsDeleteHeader» / "
                      "«OldMailScriptIsDelete»«OldOut2011ScriptIsDelete»«OldScriptIsDelete»"}));
  EXPECT_EQ(panels.alerts[0].buttons, std::vector<std::string>{"«AlertClose»"});
}

TEST_F(OldScriptsTest, areToldAloneToo) {
  leaveOld(entourage2004(), entourageName);
  launch();
  EXPECT_EQ(panels.alerts.at(0).message, "«OldEnt2004ScriptIsDelete»«OldScriptIsDelete»");
}

TEST_F(OldScriptsTest, thatAreNotThereAreNotTold) {
  launch();
  EXPECT_EQ(log, Log{});
}

TEST_F(OldScriptsTest, areKnownByTheFolderOfTheirProgramOnly) {
  leaveOld(appleMail(), outlookName);
  leaveOld(outlook2011(), entourageName);
  leaveOld(entourage2004(), mailName);
  launch();
  for (const AddinEntry& entry : {appleMail(), outlook2011(), entourage2004()}) EXPECT_TRUE(isLeft(entry));
  EXPECT_EQ(log, Log{});
}

TEST_F(OldScriptsTest, ofAnotherEditionOfOutlookStay) {
  ship({with(outlook2011(), appVersion, "2008"), with(appleMail(), appVersion, "x")});
  leaveOld(outlook2011(), outlookName);
  leaveOld(outlook2011(), entourageName);
  leaveOld(appleMail(), mailName);
  launch();
  EXPECT_TRUE(isLeft(outlook2011()));
  EXPECT_FALSE(isLeft(appleMail())) << "Apple Mail is known without its version";
  EXPECT_EQ(panels.alerts.at(0).message, "«OldMailScriptIsDelete»«OldScriptIsDelete»");
}

TEST_F(OldScriptsTest, thatAreKnownButGoneAreNotTold) {
  folder.makeFolder(inRoot("/Users/taro/Library/Scripts/Outlook/«Outlook2011TarvoFolderName»"));
  launch();
  EXPECT_EQ(log, Log{});
  EXPECT_TRUE(folder.exists(inRoot("/Users/taro/Library/Scripts/Outlook/«Outlook2011TarvoFolderName»")));
}

TEST_F(OldScriptsTest, thatCannotBeRemovedAreNotTold) {
  leaveOld(appleMail(), mailName);
  leaveOld(entourage2004(), entourageName);
  ASSERT_TRUE(start());
  files.disturb(1, FaultyFiles::forbid);  // list, remove
  old.OldscriptUninstall();
  EXPECT_TRUE(isLeft(appleMail()));
  EXPECT_EQ(panels.alerts.at(0).message, "«OldEnt2004ScriptIsDelete»«OldScriptIsDelete»");
}

TEST_F(OldScriptsTest, refreshTheMailRowsInAnyCase) {
  setUp({outlook2011(), appleMail()});
  ASSERT_TRUE(start());
  folder.makeFolder(item(outlook2011()));
  const std::vector<AddinEntry> before = lists.fMailAddinArray();
  old.OldscriptUninstall();
  EXPECT_EQ(log, Log{}) << "nothing was removed";
  EXPECT_EQ(lists.fMailAddinArray()[0], with(before[0], installStatus, true));
  EXPECT_EQ(lists.fMailAddinArray()[1], before[1]);
}

TEST_F(OldScriptsTest, takeTheirPartOfTheRowsAlongWithThem) {
  // Old and present scripts share one folder: what is removed is not installed any more.
  setUp({appleMail()});
  leaveOld(appleMail(), mailName);
  ASSERT_TRUE(start());
  EXPECT_TRUE(isMarkedInstalled(lists.fMailAddinArray().at(0)));
  old.OldscriptUninstall();
  EXPECT_FALSE(isMarkedInstalled(lists.fMailAddinArray().at(0)));
}

TEST_F(OldScriptsTest, stayWithoutAShippedList) {
  setUp({appleMail()});
  leaveOld(appleMail(), mailName);
  remember({with(appleMail(), installFolderPath, installFolder(appleMail()))});
  ASSERT_TRUE(disk.remove(folder.at("resources/DefaultAddin.plist")));
  launch();
  EXPECT_TRUE(isLeft(appleMail()));
  EXPECT_EQ(log, Log{});
  EXPECT_TRUE(isMarkedInstalled(lists.fMailAddinArray().at(0)));
}

}  // namespace
}  // namespace tarvo::test
