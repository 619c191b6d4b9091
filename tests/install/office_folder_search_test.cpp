// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/office_folder_search.h"

#include "platform/services/common_module.h"
#include "platform/services/product_paths.h"
#include "platform/services/script_runner.h"
#include "tests/install/addin_world.h"

namespace tarvo::test {
namespace {

using namespace addin_keys;

class ScriptedService : public ScriptRunner {
 public:
  std::optional<std::string> runScript(const std::string& source) override {
    sources.push_back(source);
    return answer;
  }
  std::vector<std::string> sources;
  std::optional<std::string> answer = "14.1.0";
};

// The folder that is chosen is "/Volumes/D/Office", below the product's root.
class FolderSearch : public testing::Test, protected AddinWorld {
 protected:
  FolderSearch() {
    ship({word2011(), excel2011(), outlook2011()});
    choose(folder / inRoot(chosen));
    EXPECT_TRUE(lists.searchOfficeApplication());
  }
  void choose(std::string path) { picked = std::move(path); }
  void searchFolder() {
    panels.paths.clear();
    if (picked) panels.paths.push_back(*picked);
    search.SelectOfficeFolder();
  }
  void application(const std::string& name, const char* type, const char* signature) const {
    Dictionary information;
    if (type != nullptr) information.set("CFBundlePackageType", type);
    if (signature != nullptr) information.set("CFBundleSignature", signature);
    folder.write(inRoot(chosen) + "/" + name + "/Contents/Info.plist", writePropertyList(information));
  }
  bool offer(const AddinEntry& shipped, int version, const std::string& signature) {
    return search.getAddOfficeDictionary(shipped, version, real(chosen) / "App.app", signature, real(chosen));
  }
  std::string pathOf(const AddinEntry& row) const { return addinText(row, appPath); }
  std::string placeOf(const AddinEntry& row) const { return addinText(row, installFolderPath); }

  std::optional<std::string> picked;  // nothing: cancelled
  const std::string chosen = "/Volumes/D/Office";
  ScriptedService scripts;
  ProductPaths paths{locations, Dictionary{}};
  TarvoCommonModule module{paths};
  OfficeFolderSearch search{{files, locations, panels, texts, scripts, module}, lists, mailScripts};
};

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
  EXPECT_FALSE((*lists.fDefaultOfficeSetArray())[0]->contains(installStatus));
}

TEST_F(FolderSearch, addsNoSecondRowForOneApplication) {
  ship({word2011(), with(word2011(), appName, "Another Word 2011")});
  ASSERT_TRUE(lists.searchOfficeApplication());
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
    ASSERT_TRUE(lists.searchOfficeApplication());
    EXPECT_TRUE(offer(with(word2011(), appCreator, creator), 14, creator)) << creator;
    EXPECT_EQ(placeOf(lists.fOfficeAddinArray().at(0)), "/Volumes/D/Office/Office/Startup/Word");
  }
}

TEST_F(FolderSearch, putsOutlooksScriptsBelowTheHome) {
  folder.makeFolder(inRoot("/Users/taro/Library/Scripts/Outlook"));
  ship({with(outlook2011(), installFolderName, "/Other/Outlook")});
  ASSERT_TRUE(lists.searchOfficeApplication());
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
  ASSERT_TRUE(lists.searchOfficeApplication());
  EXPECT_TRUE(offer(*(*lists.fDefaultOfficeSetArray())[2], 14, "OPIM"));
  EXPECT_TRUE(lists.fMailAddinArray().empty());
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
