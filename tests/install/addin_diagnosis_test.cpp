// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_diagnosis.h"

#include <unistd.h>

#include "tests/install/addin_world.h"

namespace tarvo::test {
namespace {

using namespace addin_keys;

class Diagnosis : public testing::Test, protected AddinWorld {
 protected:
  Diagnosis() {
    resource("Macros/2011/Tarvo.dotm", "macro");
    resource("Mail/Tarvo/a.scpt", "a");
    resource("Mail/Tarvo/b.scpt", "b");
  }
  AddinDiagnosis of(const AddinEntry& entry) const { return diagnoseAddin(entry, files, bundle); }
  const AddinEntry word = word2011();
  const AddinEntry mail = with(appleMail(), installFolderPath, installFolder(appleMail()));
};

TEST_F(Diagnosis, findsNothingInTheWayOfACleanInstall) {
  setUp({word, mail});
  for (const AddinEntry& entry : {word, mail}) {
    const AddinDiagnosis found = of(entry);
    EXPECT_EQ(found.obstacle, "");
    EXPECT_EQ(found.missing, Rows{});
    EXPECT_FALSE(found.isThere || found.isMarked || found.isPartial || found.differs());
  }
  EXPECT_EQ(of(word).table, "office");
  EXPECT_EQ(of(mail).table, "mail");
  EXPECT_EQ(of(word).item, "/Applications/O11/Office/Startup/Word/Tarvo.dotm");
  EXPECT_TRUE(files.uses().size() > 0) << "it only lists";
  for (const FaultyFiles::Use& use : files.uses()) EXPECT_EQ(use.operation, FaultyFiles::Operation::list);
}

TEST_F(Diagnosis, namesEverythingThatIsMissing) {
  const AddinDiagnosis found = of(with(word, installMacroName, "Macros/2011/None.dotm"));
  EXPECT_EQ(found.missing,
            (Rows{"/Applications/O11/Word.app", "Macros/2011/None.dotm", "/Applications/O11/Office/Startup/Word"}));
  EXPECT_EQ(found.obstacle, "what is to be installed is missing from the product");
}

TEST_F(Diagnosis, tellsWhyAMacroCannotBeInstalled) {
  EXPECT_EQ(of(word).obstacle, "the install folder is missing");
  setUp({word});
  folder.write(item(word), "the user's");
  EXPECT_EQ(of(word).obstacle, "there is something of that name already");
  EXPECT_TRUE(of(word).differs()) << "the row says no, the disk yes";
  ASSERT_EQ(::unlink((folder / item(word)).c_str()), 0);
  ASSERT_EQ(::symlink("nowhere", (folder / item(word)).c_str()), 0);
  EXPECT_EQ(of(word).obstacle, "a link is in the way");
  EXPECT_EQ(of(with(word, installMacroName, "")).obstacle, "the record names nothing to install");
  EXPECT_EQ(of(with(word, installFolderPath, "Office")).obstacle, "the install folder is no absolute path");
  folder.write(inRoot("/plain"), "");
  EXPECT_EQ(of(with(word, installFolderPath, "/plain")).obstacle, "the install folder is no folder");
}

TEST_F(Diagnosis, tellsWhyScriptsCannotBeInstalled) {
  setUp({mail});
  folder.write(item(mail) + "/b.scpt", "");
  const AddinDiagnosis partial = of(mail);
  EXPECT_TRUE(partial.isPartial);
  EXPECT_TRUE(partial.differs());
  EXPECT_EQ(partial.missing, Rows{partial.item + "/a.scpt"});
  EXPECT_EQ(partial.obstacle, "there is a script of that name already: b.scpt");
  ASSERT_TRUE(disk.remove(partial.item));
  folder.makeFolder(item(mail));
  EXPECT_EQ(of(mail).obstacle, "") << "an empty folder is in nobody's way";
  EXPECT_TRUE(of(mail).isPartial);
  ASSERT_TRUE(disk.remove(partial.item));
  folder.write(item(mail), "");
  EXPECT_EQ(of(mail).obstacle, "a file of that name is in the way");
  folder.makeFolder("resources/Mail/Empty");
  EXPECT_EQ(of(with(mail, installMacroName, "Mail/Empty")).obstacle, "the product holds no scripts for it");
  resource("Mail/Plain", "");
  EXPECT_EQ(of(with(mail, installMacroName, "Mail/Plain")).obstacle, "the scripts of the product cannot be listed");
}

TEST_F(Diagnosis, ofScriptsWithoutTheirFolderSeesNothingInTheWay) {
  const AddinDiagnosis found = of(mail);
  EXPECT_EQ(found.obstacle, "") << "the folder is made";
  EXPECT_EQ(found.missing, (Rows{"/Applications/Mail.app", "/Users/taro/Library/Scripts/Applications/Mail"}));
}

TEST_F(Diagnosis, tellsWhyScriptsCannotBeRemovedAndAgreesWithARemoval) {
  setUp({mail});
  const std::string target = folder / item(mail);
  const auto expectRefused = [&](const char* why) {
    EXPECT_EQ(of(mail).removalObstacle, why);
    EXPECT_FALSE(mailScripts.unInstallMailScript(mail)) << why;
  };
  EXPECT_EQ(of(mail).removalObstacle, "") << "nothing is there";
  folder.write(item(mail), "the user's");
  expectRefused("it is no folder of scripts");
  ASSERT_EQ(::unlink(target.c_str()), 0);
  ASSERT_EQ(::symlink((folder / "resources").c_str(), target.c_str()), 0);
  expectRefused("it is a link, which is left alone");
  EXPECT_TRUE(folder.exists("resources/Mail/Tarvo/a.scpt"));
  ASSERT_EQ(::unlink(target.c_str()), 0);
  ASSERT_TRUE(mailScripts.installMailScript(mail));
  EXPECT_EQ(of(mail).removalObstacle, "");
  ASSERT_EQ(::symlink("nowhere", (target + "/c.scpt").c_str()), 0);
  expectRefused("a link in it leads nowhere: c.scpt");
  ASSERT_EQ(::unlink((target + "/c.scpt").c_str()), 0);
  EXPECT_EQ(of(mail).removalObstacle, "");
  EXPECT_TRUE(mailScripts.unInstallMailScript(mail));
}

TEST_F(Diagnosis, seesNothingInTheWayOfRemovingAMacroOrWhatBearsItsName) {
  setUp({word});
  EXPECT_EQ(of(word).removalObstacle, "");
  folder.write(item(word) + "/inner", "of the user");
  EXPECT_EQ(of(word).removalObstacle, "");
  EXPECT_TRUE(macros.unInstallOfficeMacro(word));
}

TEST_F(Diagnosis, agreesWithWhatAnInstallDoes) {
  setUp({word, mail});
  for (int times = 0; times < 2; ++times) {
    const bool macroIsFree = of(word).obstacle.empty(), scriptsAreFree = of(mail).obstacle.empty();
    EXPECT_EQ(macros.installOfficeMacro(word), macroIsFree) << times;
    EXPECT_EQ(mailScripts.installMailScript(mail), scriptsAreFree) << times;
  }
  const AddinDiagnosis found = of(with(mail, installStatus, true));
  EXPECT_TRUE(found.isThere && found.isMarked && !found.differs() && !found.isPartial);
}

}  // namespace
}  // namespace tarvo::test
