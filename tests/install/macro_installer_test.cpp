// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/macro_installer.h"

#include <unistd.h>

#include "tests/install/addin_world.h"

namespace tarvo::test {
namespace {

using namespace addin_keys;

class Macros : public testing::Test, protected AddinWorld {
 protected:
  Macros() {
    setUp({word});
    resource("Macros/2011/Tarvo.dotm", content);
  }
  const AddinEntry word = word2011();
  const std::string target = item(word);
  const std::string content{"macro\0\r\n\xff", 9};
};

TEST_F(Macros, areCopiedByteForByte) {
  EXPECT_TRUE(macros.installOfficeMacro(word));
  EXPECT_EQ(folder.read(target), content);
}

TEST_F(Macros, areFoundByFolderNameAndExtension) {
  const struct {
    const char *macro, *resource;
  } cases[] = {{"Macros/A.v2.dotm", "Macros/A.v2.dotm"},
               {"Plain", "Plain"},
               {"Macros/.hidden", "Macros/.hidden"},
               {"Macros/sub/", "Macros/sub"}};
  for (const auto& one : cases) {
    const AddinEntry entry = with(word, installMacroName, one.macro);
    EXPECT_FALSE(macros.installOfficeMacro(entry)) << one.macro << " is not there yet";
    resource(one.resource, one.macro);
    EXPECT_TRUE(macros.installOfficeMacro(entry)) << one.macro;
    EXPECT_EQ(folder.read(item(entry)), one.macro);
  }
}

TEST_F(Macros, areFoundInTheUsersLanguage) {
  resource("en.lproj/Macros/Local.dotm", "English");
  EXPECT_TRUE(macros.installOfficeMacro(with(word, installMacroName, "Macros/Local.dotm")));
}

TEST_F(Macros, neverReplaceWhatIsThere) {
  folder.write(target, "the user's");
  EXPECT_FALSE(macros.installOfficeMacro(word));
  EXPECT_EQ(folder.read(target), "the user's");
}

TEST_F(Macros, neverNestInAFolderOfTheirName) {
  folder.makeFolder(target);
  EXPECT_FALSE(macros.installOfficeMacro(word));
  EXPECT_TRUE(folder.names(target).empty());
}

TEST_F(Macros, followNoLinkInTheirPlace) {
  folder.write("elsewhere", "the user's");
  for (const char* to : {"elsewhere", "nowhere"}) {
    ASSERT_EQ(::symlink((folder / to).c_str(), (folder / target).c_str()), 0);
    EXPECT_FALSE(macros.installOfficeMacro(word)) << to;
    EXPECT_FALSE(folder.exists("nowhere"));
    ASSERT_EQ(::unlink((folder / target).c_str()), 0);
  }
  ASSERT_EQ(::symlink((folder / "elsewhere").c_str(), (folder / target).c_str()), 0);
  EXPECT_TRUE(macros.unInstallOfficeMacro(word)) << "the link itself goes";
  EXPECT_EQ(folder.read("elsewhere"), "the user's");
}

TEST_F(Macros, makeNoInstallFolder) {
  ASSERT_TRUE(disk.remove(real(installFolder(word))));
  EXPECT_FALSE(macros.installOfficeMacro(word));
  EXPECT_FALSE(folder.exists(inRoot(installFolder(word))));
}

TEST_F(Macros, cannotBeInstalledWhenTheProductLacksThem) {
  ASSERT_TRUE(disk.remove(folder.at("resources/Macros")));
  EXPECT_FALSE(macros.installOfficeMacro(word));
  EXPECT_TRUE(folder.names(inRoot(installFolder(word))).empty());
}

TEST_F(Macros, areRemovedAlsoWhenTheyAreGoneAlready) {
  ASSERT_TRUE(macros.installOfficeMacro(word));
  EXPECT_TRUE(macros.unInstallOfficeMacro(word));
  EXPECT_FALSE(folder.exists(target));
  EXPECT_TRUE(macros.unInstallOfficeMacro(word));
}

// A disk that cannot say whether what was removed comes back.
class FailingDisk : public PosixFiles {
 public:
  using PosixFiles::PosixFiles;
  Result<> sync(const DiskPath& folder) override {
    synced.push_back(folder);
    return Failure{folder.text(), Attempt::write, std::make_error_code(std::errc::io_error)};
  }
  std::vector<DiskPath> synced;
};

TEST_F(Macros, thatAPowerCutMightBringBackAreNotTakenForRemoved) {
  FailingDisk failing(locations);
  MacroInstaller installer(failing, bundle, locations);
  ASSERT_TRUE(macros.installOfficeMacro(word));
  EXPECT_EQ(installer.unInstallOfficeMacro(word).error().cause, std::errc::io_error);
  EXPECT_FALSE(folder.exists(target));
  EXPECT_EQ(failing.synced, std::vector{real(installFolder(word))});
  EXPECT_TRUE(installer.unInstallOfficeMacro(word)) << "by now it is not there";
}

TEST_F(Macros, thatCannotBeLookedAtAreNotTakenForRemoved) {
  ASSERT_EQ(::symlink("Tarvo.dotm", (folder / target).c_str()), 0) << "a link to itself";
  const Result<> removed = macros.unInstallOfficeMacro(word);
  ASSERT_FALSE(removed);
  EXPECT_EQ(removed.error().cause, std::errc::too_many_symbolic_link_levels);
  EXPECT_EQ(removed.error().path, folder / target);
  EXPECT_TRUE(lists.getInstallStatus(with(word, installStatus, true))) << "what was known last";
  EXPECT_FALSE(lists.getInstallStatus(word));
}

TEST_F(Macros, ofANamelessOrPlacelessRecordTouchNothing) {
  for (const char* name : {"", "/", "Macros/..", "."}) {
    const AddinEntry nameless = with(word, installMacroName, name);
    EXPECT_FALSE(macros.installOfficeMacro(nameless)) << name;
    EXPECT_TRUE(macros.unInstallOfficeMacro(nameless)) << name;
  }
  for (const char* place : {"", "Office/Startup/Word"}) {
    EXPECT_FALSE(macros.installOfficeMacro(with(word, installFolderPath, place))) << place;
  }
  EXPECT_TRUE(folder.names(inRoot(installFolder(word))).empty());
}

}  // namespace
}  // namespace tarvo::test
