// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/mail_script_installer.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/posix_files.h"
#include "platform/services/bundle.h"
#include "platform/services/locations.h"
#include "tests/install/addin_world.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {
namespace {

constexpr const char* systemVersionFile = "System/Library/CoreServices/SystemVersion.plist";
constexpr const char* oldFolder = "Users/taro/Library/Scripts/Mail Scripts";
constexpr const char* newFolder = "Users/taro/Library/Scripts/Applications/Mail";

class MailScriptFolder : public testing::Test {
 protected:
  MailScriptFolder() { folder.makeFolder("Users/taro"); }
  void runOn(const std::string& version) {
    folder.write(systemVersionFile, "<plist version=\"1.0\"><dict><key>ProductVersion</key><string>" + version +
                                        "</string></dict></plist>");
  }
  Result<> create() { return MailScriptInstaller(files, bundle, locations).createMailScriptFolder(); }

  TemporaryFolder folder;
  Locations locations{folder.path(), folder / "Users/taro"};
  PosixFiles files{locations};
  Bundle bundle{files, folder.at("resources"), {"en"}};
};

struct VersionCase {
  const char *version, *made, *notMade;
};

TEST_F(MailScriptFolder, liesWhereTheSystemVersionPutsIt) {
  const VersionCase cases[] = {{"10.3.9", oldFolder, newFolder},
                               {"10.4", newFolder, oldFolder},
                               {"10.6.8", newFolder, oldFolder},
                               {"10.10", oldFolder, newFolder},
                               {"no number", oldFolder, newFolder}};
  for (const VersionCase& running : cases) {
    ASSERT_TRUE(files.remove(folder.at("Users")));
    folder.makeFolder("Users/taro");
    runOn(running.version);
    EXPECT_TRUE(create()) << running.version;
    EXPECT_TRUE(folder.exists(running.made)) << running.version;
    EXPECT_FALSE(folder.exists(running.notMade)) << running.version;
  }
}

TEST_F(MailScriptFolder, isTheOldOneWhenTheVersionIsUnknown) {
  EXPECT_TRUE(create());
  EXPECT_TRUE(folder.exists(oldFolder));
  EXPECT_FALSE(folder.exists(newFolder));
}

TEST_F(MailScriptFolder, isMadeOpenToEverybodyAndMayBeThereAlready) {
  runOn("10.6.8");
  const mode_t before = ::umask(022);
  EXPECT_TRUE(create());
  ::umask(before);
  EXPECT_EQ(folder.mode(newFolder), 0777U);
  EXPECT_TRUE(create());
}

TEST_F(MailScriptFolder, isNotMadeBelowAPlainFile) {
  folder.write("Users/taro/Library", "in the way");
  EXPECT_FALSE(create());
}

// Installing and removing a folder of scripts.
class MailScripts : public testing::Test, protected AddinWorld {
 protected:
  MailScripts() {
    setUp({mail});
    resource("Mail/Tarvo/a.scpt", "first");
    resource("Mail/Tarvo/b.scpt", "second");
    resource("Mail/Tarvo/sub/c", "third");
  }
  static AddinEntry loaded(const AddinEntry& entry) {
    return with(entry, addin_keys::installFolderPath, installFolder(entry));
  }
  Result<> install() { return mailScripts.installMailScript(mail); }
  Result<> remove() { return mailScripts.unInstallMailScript(mail); }

  const AddinEntry mail = loaded(appleMail());
  const std::string target = item(mail);
};

TEST_F(MailScripts, areOfferedWhereAnythingTakesTheirPlace) {
  EXPECT_TRUE(mailScripts.isMailScriptFolder(mail));
  const AddinEntry outlook = loaded(outlook2011());
  EXPECT_FALSE(mailScripts.isMailScriptFolder(outlook));
  folder.write(inRoot(installFolder(outlook)), "a plain file");
  EXPECT_TRUE(mailScripts.isMailScriptFolder(outlook));
  EXPECT_FALSE(mailScripts.isMailScriptFolder(outlook2011())) << "a relative path is nowhere";
}

TEST_F(MailScripts, areCopiedItemByItemIntoAFolderOfTheirName) {
  const mode_t before = ::umask(022);
  EXPECT_TRUE(install());
  ::umask(before);
  EXPECT_EQ(folder.mode(target), 0777U);
  EXPECT_EQ(folder.names(target), (Rows{"a.scpt", "b.scpt", "sub"}));
  EXPECT_EQ(folder.read(target + "/a.scpt"), "first");
  EXPECT_EQ(folder.read(target + "/sub/c"), "third");
}

TEST_F(MailScripts, haveAWholeNameWithoutExtension) {
  resource("Mail/Tarvo 1.0/a.scpt", "first");
  const AddinEntry dotted = with(mail, addin_keys::installMacroName, "Mail/Tarvo 1.0");
  EXPECT_TRUE(mailScripts.installMailScript(dotted));
  EXPECT_EQ(folder.names(item(dotted)), Rows{"a.scpt"});
}

TEST_F(MailScripts, areNotInstalledFromAnEmptyFolderWhichLeavesOneBehind) {
  folder.makeFolder("resources/Mail/Empty");
  const AddinEntry empty = with(mail, addin_keys::installMacroName, "Mail/Empty");
  EXPECT_FALSE(mailScripts.installMailScript(empty));
  EXPECT_TRUE(folder.exists(item(empty)));
  EXPECT_TRUE(folder.names(item(empty)).empty());
}

TEST_F(MailScripts, thatAreMissingLeaveTheirFolderBehindToo) {
  const AddinEntry missing = with(mail, addin_keys::installMacroName, "Mail/Missing");
  EXPECT_FALSE(mailScripts.installMailScript(missing));
  EXPECT_TRUE(folder.exists(item(missing)));
  EXPECT_TRUE(lists.getInstallStatus(missing)) << "and so count as installed from then on";
}

TEST_F(MailScripts, stopAtTheFirstNameThatIsTaken) {
  resource("Mail/Tarvo/c.scpt", "third");
  folder.write(target + "/b.scpt", "the user's");
  EXPECT_FALSE(install());
  EXPECT_EQ(folder.names(target), (Rows{"a.scpt", "b.scpt"}));
  EXPECT_EQ(folder.read(target + "/b.scpt"), "the user's");
}

TEST_F(MailScripts, leaveOutWhatIsNotThereInTheProduct) {
  ASSERT_EQ(::symlink("nowhere", (folder / "resources/Mail/Tarvo/aa").c_str()), 0);
  EXPECT_TRUE(install());
  EXPECT_EQ(folder.names(target), (Rows{"a.scpt", "b.scpt", "sub"}));
}

TEST_F(MailScripts, makeTheInstallFolderThatHasVanished) {
  ASSERT_TRUE(disk.remove(real("/Users/taro/Library")));
  EXPECT_TRUE(install());
  EXPECT_EQ(folder.mode(inRoot(installFolder(mail))), 0777U);
  EXPECT_EQ(folder.names(target), (Rows{"a.scpt", "b.scpt", "sub"}));
}

TEST_F(MailScripts, areNotInstalledOverAPlainFile) {
  folder.write(target, "in the way");
  EXPECT_FALSE(install());
  EXPECT_EQ(folder.read(target), "in the way");
}

TEST_F(MailScripts, followNoLinkInTheirPlace) {
  folder.write("elsewhere/mine.scpt", "the user's");
  ASSERT_EQ(::symlink((folder / "elsewhere").c_str(), (folder / target).c_str()), 0);
  EXPECT_FALSE(install());
  EXPECT_FALSE(remove());
  EXPECT_EQ(folder.names("elsewhere"), Rows{"mine.scpt"});
  EXPECT_TRUE(folder.exists(target));
}

TEST_F(MailScripts, areRemovedWithTheirFolder) {
  ASSERT_TRUE(install());
  folder.write(target + "/sub/the user's", "too");
  EXPECT_TRUE(remove());
  EXPECT_FALSE(folder.exists(target));
  EXPECT_TRUE(folder.exists(inRoot(installFolder(mail))));
}

TEST_F(MailScripts, areOnlyGoneWhenNoPowerCutBringsThemBack) {
  class FailingDisk : public PosixFiles {
   public:
    using PosixFiles::PosixFiles;
    Result<> sync(const DiskPath& folder) override {
      return Failure{folder.text(), Attempt::write, std::make_error_code(std::errc::io_error)};
    }
  };
  FailingDisk failing(locations);
  ASSERT_TRUE(install());
  const Result<> removed = MailScriptInstaller(failing, bundle, locations).unInstallMailScript(mail);
  ASSERT_FALSE(removed);
  EXPECT_EQ(removed.error().path, real(installFolder(mail)).text());
  EXPECT_EQ(removed.error().cause, std::errc::io_error);
}

TEST_F(MailScripts, stayFromTheFirstThatCannotBeRemoved) {
  ASSERT_TRUE(install());
  files.disturb(2, FaultyFiles::forbid);  // list, a, b
  EXPECT_FALSE(remove());
  EXPECT_EQ(folder.names(target), (Rows{"b.scpt", "sub"}));
}

TEST_F(MailScripts, areOnlyGoneWhenTheirFolderIs) {
  ASSERT_TRUE(install());
  // What fails last decides: the folder itself.
  files.disturb(4, FaultyFiles::forbid);
  EXPECT_FALSE(remove());
  EXPECT_TRUE(folder.names(target).empty());
}

TEST_F(MailScripts, keepTheirFolderForALinkThatLeadsNowhere) {
  ASSERT_TRUE(install());
  ASSERT_EQ(::symlink("nowhere", (folder / (target + "/x")).c_str()), 0);
  EXPECT_EQ(remove().error().cause, Reason::deadLink);
  EXPECT_EQ(folder.names(target), Rows{"x"});
}

TEST_F(MailScripts, cannotBeRemovedWhereThereAreNone) { EXPECT_FALSE(remove()); }

TEST_F(MailScripts, ofANamelessRecordTouchNothing) {
  for (const char* name : {"", "/", "Mail/..", "."}) {
    const AddinEntry nameless = with(mail, addin_keys::installMacroName, name);
    EXPECT_FALSE(mailScripts.installMailScript(nameless)) << name;
    EXPECT_FALSE(mailScripts.unInstallMailScript(nameless)) << name;
    EXPECT_FALSE(lists.getInstallStatus(nameless)) << name;
  }
  EXPECT_TRUE(folder.exists(inRoot(installFolder(mail))));
  EXPECT_EQ(folder.names(inRoot("/Users/taro/Library/Scripts")), Rows{"Applications"});
}

}  // namespace
}  // namespace tarvo::test
