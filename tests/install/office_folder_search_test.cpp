// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/office_folder_search.h"

#include "tests/install/folder_search_fixture.h"

namespace tarvo::test {
namespace {

using namespace addin_keys;

TEST_F(FolderSearch, asksTheDesktopForAVersionInFourLines) {
  EXPECT_EQ(search.getApplicationVer(real("/Volumes/D/Office/Word.app")), 14);
  ASSERT_EQ(scripts.sources.size(), 1U);
  EXPECT_EQ(scripts.sources[0],
            "tell application \"Finder\" \n set appInfo to info for file \"D:Office:Word.app\" \n set appVer to short "
            "version of appInfo \n end tell");
}

TEST_F(FolderSearch, readsTheLeadingNumberOfAVersion) {
  const struct {
    std::optional<std::string> answer;
    int version;
  } cases[] = {{"14.0.0", 14}, {"14", 14}, {"12.3", 12}, {" 14", 14}, {"v14", 0}, {std::nullopt, 0}, {"", 0}};
  for (const auto& one : cases) {
    scripts.answer = one.answer;
    EXPECT_EQ(search.getApplicationVer(real("/a")), one.version) << one.answer.value_or("nothing");
  }
}

TEST_F(FolderSearch, addsTheApplicationsOfTheChosenFolder) {
  setText("Notice.found", "%1: %2");
  application("Word.app", "APPL", "MSWD");
  application("Data.bundle", "BNDL", "XCEL");
  folder.write(inRoot(chosen) + "/notes.txt", "");
  folder.write(inRoot(chosen) + "/Office/Startup/Word/Tarvo.dotm", "");
  searchFolder();
  ASSERT_EQ(panels.opens.size(), 1U);
  EXPECT_EQ(panels.opens[0].title, "«SelectOfficeFolder»");
  EXPECT_TRUE(panels.opens[0].foldersOnly);
  ASSERT_EQ(lists.fOfficeAddinArray().size(), 1U);
  const AddinEntry expected = with(with(with(word2011(), appPath, "/Volumes/D/Office/Word.app"), installFolderPath,
                                        "/Volumes/D/Office/Office/Startup/Word"),
                                   installStatus, true);
  EXPECT_EQ(lists.fOfficeAddinArray()[0], expected);
  EXPECT_EQ(scripts.sources.size(), 1U) << "asked once, and for the application alone";
  EXPECT_EQ(outlets.officeTableView.numberOfRows(), 1);
  EXPECT_EQ(told, "1: Word 2011");
  EXPECT_FALSE((*lists.fDefaultOfficeSetArray())[0]->contains(installStatus));
}

TEST_F(FolderSearch, addsNoSecondRowForOneApplication) {
  ship({word2011(), with(word2011(), appName, "Another Word 2011")});
  ASSERT_TRUE(start());
  application("Word.app", "APPL", "MSWD");
  for (int times = 0; times < 2; ++times) {
    searchFolder();
    EXPECT_EQ(names(lists.fOfficeAddinArray()), Rows{"Word 2011"}) << "the second record finds the path taken";
  }
}

TEST_F(FolderSearch, takesTheWrittenFormOfAPathAsAnother) {
  application("Word.app", "APPL", "MSWD");
  lists.addOfficeRow(with(word2011(), appPath, "/Volumes/D/Office/WORD.app"));
  searchFolder();
  EXPECT_EQ(lists.fOfficeAddinArray().size(), 2U);
}

TEST_F(FolderSearch, leavesAnApplicationOutsideTheRootOutWhoseStoredPathWouldMeanAnother) {
  const std::string outside = folder / "media/Office";
  for (const std::string name : {"Word.app", "Excel.app"}) {
    Dictionary information;
    information.set("CFBundlePackageType", "APPL");
    information.set("CFBundleSignature", name == "Word.app" ? "MSWD" : "XCEL");
    folder.write("media/Office/" + name + "/Contents/Info.plist", writePropertyList(information));
  }
  folder.makeFolder(inRoot(outside + "/Word.app"));
  choose(outside);
  searchFolder();
  EXPECT_EQ(names(lists.fOfficeAddinArray()), Rows{"Excel 2011"}) << "the macro of Word would go below the root";
  EXPECT_EQ(lists.placesOf(lists.fOfficeAddinArray().at(0)).application.text(), outside + "/Excel.app");
}

TEST_F(FolderSearch, leavesAnApplicationOutWhosePathTheSettingsCannotHold) {
  application("Word.app", "APPL", "MSWD");
  application("\xFF.app", "APPL", "MSWD");
  searchFolder();
  ASSERT_EQ(lists.fOfficeAddinArray().size(), 1U) << "it would be gone with the next start";
  EXPECT_EQ(pathOf(lists.fOfficeAddinArray()[0]), chosen + "/Word.app");
}

TEST_F(FolderSearch, endsSilentlyWithoutAFolderToList) {
  application("Word.app", "APPL", "MSWD");
  picked.reset();
  searchFolder();
  choose(folder / inRoot("/Volumes/D/nothing"));
  searchFolder();
  choose(folder / inRoot(chosen + "/Word.app/Contents/Info.plist"));
  searchFolder();
  EXPECT_TRUE(lists.fOfficeAddinArray().empty());
  EXPECT_EQ(log, (Log{"open panel", "open panel", "open panel"}));
  EXPECT_TRUE(scripts.sources.empty());
}

TEST_F(FolderSearch, reloadsTheTablesOnlyAfterAListing) {
  lists.addOfficeRow(word2011());
  choose(folder / inRoot("/Volumes/D/nothing"));
  searchFolder();
  EXPECT_EQ(outlets.officeTableView.numberOfRows(), 0);
  folder.makeFolder(inRoot(chosen));
  choose(folder / inRoot(chosen));
  searchFolder();
  EXPECT_EQ(outlets.officeTableView.numberOfRows(), 1);
}

TEST_F(FolderSearch, dropsWhatIsNoApplicationWithoutAsking) {
  application("Small.app", "appl", "MSWD");
  application("Untyped.app", nullptr, "MSWD");
  folder.makeFolder(inRoot(chosen) + "/Empty.app");
  folder.write(inRoot(chosen) + "/Damaged.app/Contents/Info.plist", "damaged");
  folder.write(inRoot(chosen) + "/Packed.app/Contents/PkgInfo", "APPLMSWD");
  searchFolder();
  EXPECT_TRUE(scripts.sources.empty());
  EXPECT_TRUE(lists.fOfficeAddinArray().empty());
}

TEST_F(FolderSearch, asksNothingWithoutAShippedList) {
  application("Word.app", "APPL", "MSWD");
  folder.write("resources/DefaultAddin.plist", "damaged");
  EXPECT_FALSE(lists.loadAddinPlist());
  searchFolder();
  EXPECT_TRUE(scripts.sources.empty());
}

TEST_F(FolderSearch, usesAFolderOutsideTheProductAsItIs) {
  Dictionary information;
  information.set("CFBundlePackageType", "APPL");
  information.set("CFBundleSignature", "MSWD");
  folder.write("usb/Word.app/Contents/Info.plist", writePropertyList(information));
  choose(folder / "usb");
  searchFolder();
  ASSERT_EQ(lists.fOfficeAddinArray().size(), 1U);
  EXPECT_EQ(pathOf(lists.fOfficeAddinArray()[0]), folder / "usb/Word.app");
  EXPECT_EQ(placeOf(lists.fOfficeAddinArray()[0]), folder / "usb/Office/Startup/Word");
}

}  // namespace
}  // namespace tarvo::test
