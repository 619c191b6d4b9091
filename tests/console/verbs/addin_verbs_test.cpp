// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "platform/posix/instance_lock.h"
#include "tests/console/verbs/addin_verb_test.h"

// The verbs on macros and mail scripts, as an administrator meets them.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

TEST_F(AddinVerbs, listingShowsTheRowsOfBothTablesAndOnlyReads) {
  put(macro, "x");
  makeFolder("/Users/taro/Library/Scripts/Entourage");
  const auto before = tree();
  expect({"addins"}, 0,
         "installed  Word 2011       2011  root:/Applications/O11/Word.app       " + real(macro) +
             ": Failure.check; Cause.foreign\n"
             "-          Excel 2011      2011  root:/Applications/O11/Excel.app\n"
             "-          Word 2008       2008  root:/Applications/O08/Word.app\n"
             "-          Mail            4     root:/Applications/Mail.app\n"
             "-          Entourage 2004  2004  root:/Applications/O04/Entourage.app\n",
         "");
  const std::string json = run({"addins", "--json"}).out;
  EXPECT_EQ(json.substr(0, json.find('}') + 1),
            "[{\"creator\":\"MSWD\",\"folder\":\"root:/Applications/O11/Office/Startup/Word\",\"installed\":true,"
            "\"name\":\"Word 2011\",\"path\":\"root:/Applications/O11/Word.app\",\"reason\":\"" +
                real(macro) + ": Failure.check; Cause.foreign\",\"table\":\"office\",\"version\":\"2011\"}");
  EXPECT_NE(
      json.find("{\"creator\":\"emal\",\"folder\":\"home:/Library/Scripts/Applications/Mail\",\"installed\":"
                "false,\"name\":\"Mail\",\"path\":\"root:/Applications/Mail.app\",\"reason\":\"\",\"table\":\"mail\","
                "\"version\":\"4\"}"),
      std::string::npos);
  run({"doctor"});
  EXPECT_EQ(tree(), before);
}

TEST_F(AddinVerbs, listingIsWhatTheNextStartShows) {
  const std::string before = run({"addins", "--json"}).out;
  startAndEnd();
  EXPECT_EQ(run({"addins", "--json"}).out, before);
}

TEST_F(AddinVerbs, listingWithoutAnyList) {
  makeFolder("/Users/taro/Library/Preferences");
  for (const char* lists : {"damaged", "<plist><dict/></plist>"}) {
    root_.folder().write("root/Bundle/DefaultAddin.plist", lists);
    const std::string line =
        told(real("/Bundle/DefaultAddin.plist"),
             std::string("cannot be read; ") + (*lists == 'd' ? "it is no property list" : "what it holds is damaged"));
    expectUntouched({"addins"}, 1, line);
    expectUntouched({"addin", "install", "Mail"}, 1, line);
    expectUntouched({"addin", "search", real("/Applications")}, 1, line);
  }
  EXPECT_EQ(diagnosis("applications that take add-ins"), "problem: the manager cannot start without a list of them");
}

TEST_F(AddinVerbs, aMacroIsInstalledAndRemoved) {
  makeFolder(startup);
  expect({"addin", "install", "Word 2011"}, 0, "", "");
  EXPECT_EQ(read(macro), "macro 2011/Tarvo.dotm\n");
  EXPECT_EQ(run({"addins"}).out.substr(0, 9), "installed");
  expect({"addin", "remove", "Word 2011", "2011"}, 0, "", "");
  EXPECT_FALSE(exists(macro));
}

TEST_F(AddinVerbs, mailScriptsAreInstalledAlsoAtTheVeryFirstStart) {
  expect({"addin", "install", "Mail"}, 0, "", "");
  EXPECT_EQ(read(std::string(scripts) + "/sub/c"), "Mail c\n");
  expect({"addin", "remove", "Mail", "4"}, 0, "", "");
  EXPECT_FALSE(exists(scripts));
}

TEST_F(AddinVerbs, whatIsSoAlreadyIsSaidAndNothingIsWritten) {
  makeFolder(startup);
  const std::string already = "already\n", json = R"({"already":true,"changed":[],"done":true,"registered":null})"
                                                  "\n";
  for (const std::string verb : {"install", "remove"}) {
    expect({"addin", verb, "Word 2011", "--json"}, 0,
           R"({"changed":["Word 2011"],"done":true,"registered":null})"
           "\n",
           "");
    const auto before = tree();
    expect({"addin", verb, "Word 2011"}, 0, already, "");
    expect({"addin", verb, "Word 2011", "--json"}, 0, json, "");
    EXPECT_EQ(tree(), before);
  }
}

TEST_F(AddinVerbs, noStyleIsNeededOrWrittenAndNoToolListNorService) {
  put(styles, "broken");
  makeFolder(startup);
  put("/Volumes/D/Word.app/Contents/Info.plist", read("/Applications/O11/Word.app/Contents/Info.plist"));
  const std::string unread = told(real(styles),
                                  "the styles cannot be read; it is no property list; mend the file, or bring earlier "
                                  "styles back with restore");
  expect({"addin", "install", "Word 2011"}, 0, "", unread);
  expect({"addin", "remove", "Word 2011"}, 0, "", unread);
  EXPECT_EQ(run({"addin", "search", real("/Volumes/D")}).status, 0);
  EXPECT_FALSE(exists(toolList));
  EXPECT_EQ(run({"tool-list"}).status, 0);
  EXPECT_EQ(read(styles), "broken");
  EXPECT_FALSE(exists("/Users/taro/Library/Application Support/Wordhaven/TarvoEngine.plist"));
  EXPECT_FALSE(exists("/Users/taro/Library/Scripts")) << "Apple Mail's folder is made by a start, or for its scripts";
  const std::string settings = read("/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.plist");
  for (const char* key : {"SMSelectedTag", "ToolbarTag", "LastUpdate"}) {
    EXPECT_EQ(settings.find(key), std::string::npos) << key;
  }
}

TEST_F(AddinVerbs, theLockIsNeededToChangeAndNotToList) {
  const InstanceLock held(DiskPath(real("/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.lock")));
  ASSERT_EQ(held.state(), InstanceLock::State::held);
  for (const std::vector<std::string>& words : {std::vector<std::string>{"addin", "install", "Mail"},
                                                {"addin", "search", real("/Applications")},
                                                {"tool-list"}}) {
    EXPECT_EQ(run(words).status, 3) << words[0];
  }
  EXPECT_EQ(run({"addins"}).status, 0);
}

TEST_F(AddinVerbs, aNameThatMeansNoRowIsRefusedAndOneThatMeansSeveralIsMisuse) {
  const std::string none =
      "there is no such add-in; no application that is listed has this name or path; tarvoctl addins lists them";
  expectUntouched({"addin", "install", "Word"}, 1, told("Word", none));
  expectUntouched({"addin", "install", "word 2011"}, 1, told("word 2011", none));
  expectUntouched({"addin", "remove", "Word 2011", "2008"}, 1, told("Word 2011 2008", none));
  expectUntouched({"addin", "install", "Outlook 2011"}, 1, told("Outlook 2011", none));
  makeFolder("/Users/taro/Library/Scripts/Outlook");
  put("/Volumes/D/Outlook.app/Contents/Info.plist", read("/Applications/O11/Outlook.app/Contents/Info.plist"));
  EXPECT_EQ(run({"addin", "search", root_.root() + "/Volumes/D"}).status, 0);
  const ToolResult several = run({"addin", "install", "Outlook 2011"});
  EXPECT_EQ(several.err,
            told("NAME Outlook 2011", "more than one has this name; allowed: " + real("/Applications/O11/Outlook.app") +
                                          ", " + real("/Volumes/D/Outlook.app")));
  EXPECT_EQ(several.status, 2);
  EXPECT_EQ(run({"addin", "install"}).status, 2);
  EXPECT_EQ(run({"addin", "burn", "Mail"}).status, 2);
}

TEST_F(AddinVerbs, theJsonOfAFailureKeepsAPathWholeThatLooksLikeTwoParts) {
  put("/Volumes/D; E/Outlook.app/Contents/Info.plist", read("/Applications/O11/Outlook.app/Contents/Info.plist"));
  makeFolder("/Users/taro/Library/Scripts/Outlook");
  EXPECT_EQ(run({"addin", "search", root_.root() + "/Volumes/D; E"}).status, 0);
  EXPECT_EQ(run({"--json", "addin", "install", "Outlook 2011"}).out,
            R"({"done":false,"error":{"cause":"allowed: )" + real("/Applications/O11/Outlook.app") + ", " +
                real("/Volumes/D; E/Outlook.app") +
                R"(","cure":"","name":"NAME Outlook 2011","what":"more than one has this name"}})"
                "\n");
}

TEST_F(AddinVerbs, rowsOfOneNameAreToldApartByTheirVersions) {
  const std::string shipped = read("/Bundle/DefaultAddin.plist");
  std::string renamed = shipped;
  for (std::size_t at = 0; (at = renamed.find("<string>Word 20", at)) != std::string::npos;) renamed.erase(at + 12, 5);
  put("/Bundle/DefaultAddin.plist", renamed);
  makeFolder(startup);
  expectUntouched({"addin", "install", "Word"}, 2, told("VERSION", "missing; allowed: 2008, 2011"));
  expect({"addin", "install", "Word", "2011"}, 0, "", "");
  EXPECT_TRUE(exists(macro));
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
  EXPECT_EQ(run({"addin", "install", "/Volumes/D/Excel.app"}).status, 1);
  // The second search of a run adds Outlook again: all three rows bear the name, two are for this application.
  EXPECT_EQ(run({"addin", "install", "Outlook 2011"}).status, 2);
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
         told(real(scripts), "cannot be taken out; a link is in its place, which is left alone; remove the link"));
  EXPECT_TRUE(exists("/elsewhere"));
  EXPECT_EQ(diagnosis("scripts of Mail"), "problem: installed; a removal would fail: " + root_.root() + scripts +
                                              ": Failure.uninstall; Cause.linkInTheWay");
}

TEST_F(AddinVerbs, aFailedInstallTellsWhyAndLeavesTheRow) {
  const std::string noFolder = "cannot be written; it is not there";
  expectUntouched({"addin", "install", "Word 2011"}, 1, told(real(startup), noFolder));
  const ToolResult json = run({"addin", "install", "Word 2011", "--json"});
  EXPECT_EQ(json.out, R"({"done":false,"error":{"cause":"it is not there","cure":"","name":")" + real(startup) +
                          R"(","what":"cannot be written"}})"
                          "\n");
  EXPECT_EQ(json.status, 1);
  makeFolder(startup);
  fs::remove(real("/Bundle/Macros/2011/Tarvo.dotm"));
  expectUntouched({"addin", "install", "Word 2011"}, 1,
                  told(real("/Bundle/Macros/2011/Tarvo.dotm"),
                       "cannot be installed; the product lacks it; install TarvoEiwa again"));
}

TEST_F(AddinVerbs, rowsThatCannotBeRememberedAreTold) {
  makeFolder(startup);
  makeFolder("/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.plist/in the way");
  put("/Volumes/D/Word.app/Contents/Info.plist", read("/Applications/O11/Word.app/Contents/Info.plist"));
  const std::string settings = real("/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.plist");
  const std::string line = told(settings,
                                "the settings cannot be read, so those of a first start hold; it is no file; mend the "
                                "file or move it away") +
                           told(settings, "cannot be written; it is a folder");
  expect({"addin", "install", "Word 2011"}, 1, "", line);
  EXPECT_TRUE(exists(macro)) << "what was done stays done";
  expect({"addin", "search", real("/Volumes/D")}, 1, "", line);
  expect({"tool-list", "tNP8"}, 1, "", line);
}

}  // namespace
}  // namespace tarvo::test
