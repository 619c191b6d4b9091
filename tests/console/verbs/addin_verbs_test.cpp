// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "tests/console/verbs/addin_verb_test.h"

// The verbs on macros, mail scripts and the tool list, as an administrator meets them.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

TEST_F(AddinVerbs, listingShowsTheRowsOfBothTablesAndOnlyReads) {
  put(macro, "x");
  makeFolder("/Users/taro/Library/Scripts/Entourage");
  const auto before = tree();
  expect({"addins"}, 0,
         "installed  Word 2011       2011  root:/Applications/O11/Word.app\n"
         "-          Excel 2011      2011  root:/Applications/O11/Excel.app\n"
         "-          Word 2008       2008  root:/Applications/O08/Word.app\n"
         "-          Mail            4     root:/Applications/Mail.app\n"
         "-          Entourage 2004  2004  root:/Applications/O04/Entourage.app\n",
         "");
  const std::string json = run({"addins", "--json"}).out;
  EXPECT_EQ(json.substr(0, json.find('}') + 1),
            "[{\"creator\":\"MSWD\",\"folder\":\"root:/Applications/O11/Office/Startup/Word\",\"installed\":true,"
            "\"name\":\"Word 2011\",\"path\":\"root:/Applications/O11/Word.app\",\"table\":\"office\","
            "\"version\":\"2011\"}");
  EXPECT_NE(json.find("{\"creator\":\"emal\",\"folder\":\"home:/Library/Scripts/Applications/Mail\",\"installed\":"
                      "false,\"name\":\"Mail\",\"path\":\"root:/Applications/Mail.app\",\"table\":\"mail\","
                      "\"version\":\"4\"}"),
            std::string::npos);
  run({"doctor"});
  EXPECT_EQ(tree(), before);
}

TEST_F(AddinVerbs, listingIsWhatTheNextStartShows) {
  const std::string before = run({"addins", "--json"}).out;
  run({"tool-list"});  // starts and ends
  EXPECT_EQ(run({"addins", "--json"}).out, before);
}

TEST_F(AddinVerbs, listingWithoutAnyList) {
  root_.folder().write("root/Bundle/DefaultAddin.plist", "damaged");
  expectUntouched({"addins"}, 1, "there is no list of the applications that take add-ins\n");
  expectUntouched({"addin", "install", "Mail"}, 1, "there is no list of the applications that take add-ins\n");
  EXPECT_EQ(diagnosis("applications that take add-ins"), "problem: the manager cannot start without a list of them");
}

TEST_F(AddinVerbs, aMacroIsInstalledAndRemoved) {
  makeFolder(startup);
  expect({"addin", "install", "Word 2011"}, 0, "", "");
  EXPECT_EQ(read(macro), "macro 2011/Tarvo.dotm\n");
  EXPECT_EQ(run({"addins"}).out.substr(0, 9), "installed");
  expect({"addin", "install", "Word 2011"}, 1, "", "Word 2011 has its add-in already\n");
  expect({"addin", "remove", "Word 2011", "2011"}, 0, "", "");
  EXPECT_FALSE(exists(macro));
  expect({"addin", "remove", "Word 2011"}, 1, "", "Word 2011 has no add-in\n");
}

TEST_F(AddinVerbs, mailScriptsAreInstalledAlsoAtTheVeryFirstStart) {
  expect({"addin", "install", "Mail"}, 0, "", "");
  EXPECT_EQ(read(std::string(scripts) + "/sub/c"), "Mail c\n");
  expect({"addin", "remove", "Mail", "4"}, 0, "", "");
  EXPECT_FALSE(exists(scripts));
}

TEST_F(AddinVerbs, aNameThatMeansNoRowOrSeveralIsMisuse) {
  expectUntouched({"addin", "install", "Word"}, 2, "there is no add-in for Word\n");
  expectUntouched({"addin", "install", "word 2011"}, 2, "there is no add-in for word 2011\n");
  expectUntouched({"addin", "remove", "Word 2011", "2008"}, 2, "there is no add-in for Word 2011, version 2008\n");
  expectUntouched({"addin", "install", "Outlook 2011"}, 2, "there is no add-in for Outlook 2011\n");
  makeFolder("/Users/taro/Library/Scripts/Outlook");
  put("/Volumes/D/Outlook.app/Contents/Info.plist", read("/Applications/O11/Outlook.app/Contents/Info.plist"));
  EXPECT_EQ(run({"addin", "search", root_.root() + "/Volumes/D"}).status, 0);
  expectUntouched({"addin", "install", "Outlook 2011"}, 2,
                  "there are 2 rows for Outlook 2011; name one by the path of its application\n");
  EXPECT_EQ(run({"addin", "install"}).status, 2);
  EXPECT_EQ(run({"addin", "burn", "Mail"}).status, 2);
}

TEST_F(AddinVerbs, rowsOfOneNameAreToldApartByTheirApplications) {
  makeFolder("/Users/taro/Library/Scripts/Outlook");
  put("/Volumes/D/Outlook.app/Contents/Info.plist", read("/Applications/O11/Outlook.app/Contents/Info.plist"));
  put("/Volumes/D/Word.app/Contents/Info.plist", read("/Applications/O11/Word.app/Contents/Info.plist"));
  makeFolder("/Volumes/D/Office/Startup/Word");
  const std::string search = "answer open root:/Volumes/D\npress officeSearchButton\n";
  put("/twice.scenario", "start\npress OA\n" + search + search + "quit\n");
  EXPECT_EQ(run({"run", root_.root() + "/twice.scenario"}).status, 0);
  const std::string found = "/Volumes/D/Office/Startup/Word/Tarvo.dotm";
  for (const std::string& path : {std::string("root:/Volumes/D/Word.app"), std::string("/Volumes/D/Word.app"),
                                  root_.root() + "/Volumes/D/Word.app"}) {
    expect({"addin", "install", path}, 0, "", "");
    EXPECT_TRUE(exists(found)) << path;
    expect({"addin", "remove", path, "2011"}, 0, "", "");
    EXPECT_FALSE(exists(found)) << path;
  }
  EXPECT_FALSE(exists(startup)) << "the other one was never meant";
  expectUntouched({"addin", "install", "/Volumes/D/Excel.app"}, 2, "there is no add-in for /Volumes/D/Excel.app\n");
  // The second search of a run adds Outlook again: all three rows bear the name, two are for this application.
  expectUntouched({"addin", "install", "Outlook 2011"}, 2,
                  "there are 3 rows for Outlook 2011; name one by the path of its application\n");
  expect({"addin", "install", "/Volumes/D/Outlook.app"}, 0, "", "");
  EXPECT_TRUE(exists("/Users/taro/Library/Scripts/Outlook/Tarvo/a.scpt"));
}

TEST_F(AddinVerbs, anOfficeOutsideTheRootIsRememberedToo) {
  const TemporaryFolder other;
  other.write("Word.app/Contents/Info.plist", read("/Applications/O11/Word.app/Contents/Info.plist"));
  other.makeFolder("Office/Startup/Word");
  const std::string word = other / "Word.app";
  expect({"addin", "search", other.path()}, 0, "added  Word 2011  2011  " + word + "\n", "");
  EXPECT_NE(run({"addins"}).out.find(word), std::string::npos);
  expect({"addin", "install", word}, 0, "", "");
  EXPECT_TRUE(other.exists("Office/Startup/Word/Tarvo.dotm"));
  expect({"addin", "remove", word}, 0, "", "");
  EXPECT_EQ(other.names("Office/Startup/Word"), std::vector<std::string>{});
  // What lies at that place below the root comes first.
  put(word + "/Contents/Info.plist", "");
  makeFolder(other / "Office/Startup/Word");
  expect({"addin", "install", "root:" + word}, 0, "", "");
  EXPECT_TRUE(exists(other / "Office/Startup/Word/Tarvo.dotm"));
  EXPECT_EQ(other.names("Office/Startup/Word"), std::vector<std::string>{});
}

TEST_F(AddinVerbs, aFailedRemovalTellsWhy) {
  fs::create_directories(root_.root() + "/elsewhere");
  makeFolder("/Users/taro/Library/Scripts/Applications/Mail");
  fs::create_symlink(root_.root() + "/elsewhere", root_.root() + scripts);
  expect({"addin", "remove", "Mail"}, 1, "",
         "Mail«MailUnInstallIsFailed» (" + root_.root() + scripts + ": Failure.uninstall; Cause.linkInTheWay)\n");
  EXPECT_TRUE(exists("/elsewhere"));
  EXPECT_EQ(diagnosis("scripts of Mail"), "problem: installed; a removal would fail: " + root_.root() + scripts +
                                              ": Failure.uninstall; Cause.linkInTheWay");
}

TEST_F(AddinVerbs, aFailedInstallTellsWhatTheWindowTellsAndWhy) {
  expect({"addin", "install", "Word 2011"}, 1, "",
         "Word 2011«OfficeInstallIsFailed» (" + root_.root() + startup + ": Failure.write; Cause.absent)\n");
  makeFolder(startup);
  fs::remove(root_.root() + "/Bundle/Macros/2011/Tarvo.dotm");
  expect({"addin", "install", "Word 2011"}, 1, "",
         "Word 2011«OfficeInstallIsFailed» (" + root_.root() +
             "/Bundle/Macros/2011/Tarvo.dotm: Failure.install; Cause.missingResource)\n");
}

TEST_F(AddinVerbs, aSearchTellsWhatItAdded) {
  put("/Volumes/D/Word.app/Contents/Info.plist", read("/Applications/O11/Word.app/Contents/Info.plist"));
  const std::string folder = root_.root() + "/Volumes/D";
  expect({"addin", "search", folder}, 0, "added  Word 2011  2011  root:/Volumes/D/Word.app\n", "");
  expect({"addin", "search", folder}, 0, "",
         "nothing was added: there is no application of Office 2011 in this folder that is not listed\n");
  const std::string listed = run({"addins"}).out;
  EXPECT_NE(listed.find("root:/Volumes/D/Word.app"), std::string::npos);
  expectUntouched({"addin", "search", folder + "/none"}, 2, "there is no folder " + folder + "/none\n");
  expectUntouched({"addin", "search", folder + "/Word.app/Contents/Info.plist"}, 2,
                  "there is no folder " + folder + "/Word.app/Contents/Info.plist\n");
}

TEST_F(AddinVerbs, theToolListIsWrittenForAnotherTool) {
  expect({"tool-list"}, 0, "", "");
  EXPECT_NE(read(toolList).find("Tool_Path=tMG8\r\n"), std::string::npos);
  expect({"tool-list", "tUD8"}, 0, "", "");
  EXPECT_NE(read(toolList).find("Tool_Name=UD\r\nTool_Path=tUD8\r\nTool_Action=2\r\n"), std::string::npos);
  expect({"tool-list"}, 0, "", "");
  EXPECT_NE(read(toolList).find("Tool_Path=tUD8\r\n"), std::string::npos);
  expectUntouched({"tool-list", "tud8"}, 2,
                  "there is no tool tud8; the tools are tMG8 tTX8 tUD8 tTM8 tTL8 tNP8 tQB8\n");
}

TEST_F(AddinVerbs, aToolListThatCannotBeWrittenIsTold) {
  makeFolder(toolList);
  expect({"tool-list", "tNP8"}, 1, "", root_.root() + toolList + ": Failure.write; Cause.isFolder\n");
  EXPECT_TRUE(fs::is_directory(root_.root() + toolList));
}

}  // namespace
}  // namespace tarvo::test
