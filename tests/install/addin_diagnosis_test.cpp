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
  AddinDiagnosis of(const AddinEntry& entry) const { return diagnoseAddin(entry, files, locations, bundle); }
  const AddinEntry word = word2011();
  const AddinEntry mail = with(appleMail(), installFolderPath, installFolder(appleMail()));
};

TEST_F(Diagnosis, findsNothingInTheWayOfACleanInstall) {
  setUp({word, mail});
  for (const AddinEntry& entry : {word, mail}) {
    const AddinDiagnosis found = of(entry);
    EXPECT_FALSE(found.obstacle);
    EXPECT_EQ(found.missing, Rows{});
    EXPECT_FALSE(found.isThere || found.isMarked || found.isPartial || found.differs());
  }
  EXPECT_EQ(of(word).kind, AddinKind::office);
  EXPECT_EQ(of(mail).kind, AddinKind::mail);
  EXPECT_EQ(of(word).places.item, real("/Applications/O11/Office/Startup/Word/Tarvo.dotm"));
  EXPECT_FALSE(files.uses().empty()) << "it only lists";
  for (const FaultyFiles::Use& use : files.uses()) EXPECT_EQ(use.operation, FaultyFiles::Operation::list);
}

TEST_F(Diagnosis, namesEverythingThatIsMissing) {
  const AddinDiagnosis found = of(with(word, installMacroName, "Macros/2011/None.dotm"));
  EXPECT_EQ(found.missing, (Rows{real("/Applications/O11/Word.app").text(), "Macros/2011/None.dotm",
                                 real("/Applications/O11/Office/Startup/Word").text()}));
  EXPECT_EQ(found.obstacle->cause, Reason::missingResource);
}

TEST_F(Diagnosis, tellsWhyAMacroCannotBeInstalled) {
  EXPECT_EQ(of(word).obstacle->cause, std::errc::no_such_file_or_directory);
  setUp({word});
  folder.write(item(word), "the user's");
  EXPECT_EQ(of(word).obstacle->cause, std::errc::file_exists);
  EXPECT_TRUE(of(word).differs()) << "the row says no, the disk yes";
  ASSERT_EQ(::unlink((folder / item(word)).c_str()), 0);
  ASSERT_EQ(::symlink("nowhere", (folder / item(word)).c_str()), 0);
  EXPECT_EQ(of(word).obstacle->cause, Reason::linkInTheWay);
  EXPECT_EQ(of(with(word, installMacroName, "")).obstacle->cause, Reason::nothingNamed);
  EXPECT_EQ(of(with(word, installFolderPath, "Office")).obstacle->cause, Reason::noInstallFolder);
  folder.write(inRoot("/plain"), "");
  EXPECT_EQ(of(with(word, installFolderPath, "/plain")).obstacle->cause, std::errc::not_a_directory);
}

TEST_F(Diagnosis, tellsWhyScriptsCannotBeInstalled) {
  setUp({mail});
  folder.write(item(mail) + "/b.scpt", "");
  const AddinDiagnosis partial = of(mail);
  EXPECT_TRUE(partial.isPartial);
  EXPECT_TRUE(partial.differs());
  EXPECT_EQ(partial.missing, Rows{(partial.places.item / "a.scpt").text()});
  EXPECT_EQ(partial.obstacle->cause, std::errc::file_exists);
  EXPECT_EQ(partial.obstacle->path, (partial.places.item / "b.scpt").text());
  ASSERT_TRUE(disk.remove(partial.places.item));
  folder.makeFolder(item(mail));
  EXPECT_FALSE(of(mail).obstacle) << "an empty folder is in nobody's way";
  EXPECT_TRUE(of(mail).isPartial);
  ASSERT_TRUE(disk.remove(partial.places.item));
  folder.write(item(mail), "");
  EXPECT_EQ(of(mail).obstacle->cause, std::errc::not_a_directory);
  folder.makeFolder("resources/Mail/Empty");
  EXPECT_EQ(of(with(mail, installMacroName, "Mail/Empty")).obstacle->cause, Reason::emptyResource);
  resource("Mail/Plain", "");
  EXPECT_EQ(of(with(mail, installMacroName, "Mail/Plain")).obstacle->cause, std::errc::not_a_directory);
}

TEST_F(Diagnosis, ofScriptsWithoutTheirFolderSeesNothingInTheWay) {
  const AddinDiagnosis found = of(mail);
  EXPECT_FALSE(found.obstacle) << "the folder is made";
  EXPECT_EQ(found.missing, (Rows{real("/Applications/Mail.app").text(),
                                 real("/Users/taro/Library/Scripts/Applications/Mail").text()}));
}

TEST_F(Diagnosis, tellsWhyScriptsCannotBeRemovedAndAgreesWithARemoval) {
  setUp({mail});
  const std::string target = folder / item(mail);
  const auto expectRefused = [&](std::error_code why) {
    EXPECT_EQ(of(mail).removalObstacle->cause, why);
    EXPECT_EQ(mailScripts.unInstallMailScript(mail).error().cause, why);
  };
  EXPECT_FALSE(of(mail).removalObstacle) << "nothing is there";
  folder.write(item(mail), "the user's");
  expectRefused(std::make_error_code(std::errc::not_a_directory));
  ASSERT_EQ(::unlink(target.c_str()), 0);
  ASSERT_EQ(::symlink((folder / "resources").c_str(), target.c_str()), 0);
  expectRefused(Reason::linkInTheWay);
  EXPECT_TRUE(folder.exists("resources/Mail/Tarvo/a.scpt"));
  ASSERT_EQ(::unlink(target.c_str()), 0);
  ASSERT_TRUE(mailScripts.installMailScript(mail));
  EXPECT_FALSE(of(mail).removalObstacle);
  ASSERT_EQ(::symlink("nowhere", (target + "/c.scpt").c_str()), 0);
  expectRefused(Reason::deadLink);
  ASSERT_EQ(::unlink((target + "/c.scpt").c_str()), 0);
  EXPECT_FALSE(of(mail).removalObstacle);
  EXPECT_TRUE(mailScripts.unInstallMailScript(mail));
}

TEST_F(Diagnosis, seesNothingInTheWayOfRemovingAMacroOrWhatBearsItsName) {
  setUp({word});
  EXPECT_FALSE(of(word).removalObstacle);
  folder.write(item(word) + "/inner", "of the user");
  EXPECT_FALSE(of(word).removalObstacle);
  EXPECT_TRUE(macros.unInstallOfficeMacro(word));
}

TEST_F(Diagnosis, tellsInWhatAnInstalledAddinDiffersFromTheProducts) {
  setUp({word, mail});
  EXPECT_TRUE(of(word).faults.empty() && of(mail).faults.empty()) << "none is there";
  ASSERT_TRUE(macros.installOfficeMacro(word) && mailScripts.installMailScript(mail));
  EXPECT_TRUE(of(word).faults.empty() && of(mail).faults.empty());
  folder.write(item(word), "");
  folder.write(item(mail) + "/a.scpt", "of the user");
  EXPECT_EQ(of(word).faults, (std::vector<Failure>{{folder / item(word), Attempt::check, Reason::emptied}}));
  EXPECT_EQ(of(mail).faults,
            (std::vector<Failure>{{folder / (item(mail) + "/a.scpt"), Attempt::check, Reason::foreign}}));
  EXPECT_TRUE(of(word).isThere && of(mail).isThere) << "they count as installed all the same";
  EXPECT_FALSE(of(mail).isPartial);
}

TEST_F(Diagnosis, agreesWithWhatAnInstallDoes) {
  setUp({word, mail});
  for (int times = 0; times < 2; ++times) {
    const bool macroIsFree = !of(word).obstacle, scriptsAreFree = !of(mail).obstacle;
    EXPECT_EQ(macros.installOfficeMacro(word).has_value(), macroIsFree) << times;
    EXPECT_EQ(mailScripts.installMailScript(mail).has_value(), scriptsAreFree) << times;
  }
  const AddinDiagnosis found = of(with(mail, installStatus, true));
  EXPECT_TRUE(found.isThere && found.isMarked && !found.differs() && !found.isPartial);
}

}  // namespace
}  // namespace tarvo::test
