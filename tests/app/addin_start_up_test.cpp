// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "app/operations.h"
#include "install/addin_entry.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"
#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

// The applications that take add-ins, from the start of the program to its end.
namespace tarvo::test {
namespace {

using namespace addin_keys;

constexpr const char* toolList = "Library/Preferences/Wordhaven/TarvoManager.txt";

AddinEntry entry(const char* name, const char* creator, const char* path, const char* folderPath) {
  AddinEntry made;
  for (const auto& [key, text] : {std::pair(appName, name),
                                  {appCreator, creator},
                                  {appVersion, "2011"},
                                  {appPath, path},
                                  {installMacroName, "Macros/Tarvo"},
                                  {installFolderPath, folderPath},
                                  {installFolderName, "Library/Scripts/Old"}}) {
    made.set(key, text);
  }
  return made;
}
const AddinEntry word = entry("Word", "MSWD", "/Applications/Word.app", "/Applications/Startup");
const AddinEntry excel = entry("Excel", "XCEL", "/Applications/Excel.app", "/Applications/Startup");
const AddinEntry mail = entry("Mail", "emal", "/Applications/Mail.app", "Library/Scripts/Applications/Mail");

// Resources of its own, with as much of the shipped list as a test wants.
class Resources {
 public:
  explicit Resources(std::initializer_list<AddinEntry> shipped) : Resources() {
    Dictionary root;
    root.set(office, Array(shipped.begin(), shipped.end()));
    folder_.write("DefaultAddin.plist", writePropertyList(root));
  }
  Resources() {
    std::filesystem::copy_file(TARVO_SOURCE_DIR "/resources/WordhavenPaths.plist", folder_ / "WordhavenPaths.plist");
    folder_.write("Macros/Tarvo", "macro");
  }
  ProductOptions options() const {
    ProductOptions options;
    options.resources = folder_.path();
    return options;
  }
  const TemporaryFolder& folder() const { return folder_; }

 private:
  TemporaryFolder folder_;
};

void setUp(TestProgram& test) {
  test.writeStyles(sampleRoot());
  Dictionary version;
  version.set("ProductVersion", "10.6.8");
  test.root.write("System/Library/CoreServices/SystemVersion.plist", writePropertyList(version));
  for (const char* application : {"Word", "Excel", "Mail"}) {
    test.root.makeFolder("Applications/" + std::string(application) + ".app");
  }
}

std::vector<std::string> stored(const TestProgram& test) {
  std::vector<std::string> names;
  const Dictionary defaults = test.defaultsOnDisk();
  const Array* rows = defaults.array(office);
  if (rows == nullptr) return {"nothing stored"};
  for (const PropertyList& row : *rows) names.push_back(*row.dictionary()->string(appName));
  return names;
}

TEST(AddinStartUp, endsWithAnAlertWhenThereIsNoListAtAll) {
  const Resources missing;
  const Resources keyless;
  keyless.folder().write("DefaultAddin.plist", writePropertyList(Dictionary()));
  for (const Resources* resources : {&missing, &keyless}) {
    TestProgram test(resources->options());
    setUp(test);
    EXPECT_FALSE(test.program().start());
    EXPECT_EQ(test.log, (Log{"beep", "alert ApplicationCautionHeader / ApplicationCautionMessage", "terminated"}));
    EXPECT_EQ(test.panels.alerts.front().buttons, std::vector<std::string>{"AlertClose"});
    EXPECT_TRUE(test.root.exists(test.inHome("Library/Scripts/Applications/Mail"))) << "made before the lists are read";
    EXPECT_TRUE(test.defaultsOnDisk().empty());
    EXPECT_FALSE(test.root.exists(test.inHome(toolList)));
  }
}

TEST(AddinStartUp, listsMailOnAFreshAccount) {
  const Resources resources{mail};
  TestProgram test(resources.options());
  setUp(test);
  ASSERT_TRUE(test.program().construct());
  EXPECT_EQ(test.interface().addins.mailTableView.numberOfRows(), 1) << "its script folder was made just before";
  EXPECT_EQ(test.interface().addins.mailTableView.cell("AppName", 0).text, "Mail");
}

TEST(AddinStartUp, showsTheDialogOfSmallScreensBeforeOldScriptsAreRemoved) {
  const Resources resources{mail};
  TestProgram test(resources.options());
  setUp(test);
  Dictionary defaults;
  defaults.set("NoDialogState", 0);
  test.root.write(test.inHome("Library/Preferences/com.wordhaven.TarvoManager.plist"), writePropertyList(defaults));
  test.root.makeFolder(test.inHome("Library/Scripts/Old/MailTarvoFolderName"));
  test.root.write(test.inHome("Library/Scripts/Old/Tarvo/old.scpt"), "");
  test.host.screen.width = 800;
  test.host.whileModal = [&test](Window&) {
    test.log.emplace_back("dialog");
    test.interface().manager.displayCloseButton.userPress();
  };
  ASSERT_TRUE(test.program().start());
  ASSERT_GE(test.log.size(), 3U);
  EXPECT_EQ(Log(test.log.begin(), test.log.begin() + 3),
            (Log{"dialog", "beep", "alert OldScriptIsDeleteHeader / OldMailScriptIsDeleteOldScriptIsDelete"}));
  EXPECT_FALSE(test.root.exists(test.inHome("Library/Scripts/Old/Tarvo")));
}

TEST(AddinStartUp, readsTheMailTableAnewAfterTheRemoval) {
  const Resources resources{mail};
  TestProgram test(resources.options());
  setUp(test);
  ASSERT_TRUE(test.program().construct());
  ASSERT_TRUE(test.program().load());
  test.root.makeFolder(test.inHome("Library/Scripts/Applications/Mail/Tarvo"));
  test.program().launch();
  EXPECT_EQ(test.interface().addins.mailTableView.cell("Value", 0).checked, true);
}

TEST(AddinQuit, writesTheToolListThenRemembersBothTables) {
  const Resources resources{mail, word, excel};
  TestProgram test(resources.options());
  setUp(test);
  test.root.makeFolder("Applications/Startup");
  ASSERT_TRUE(test.program().start());
  EXPECT_EQ(stored(test), std::vector<std::string>{"nothing stored"});
  test.interface().addins.officeTableView.userTick(0, true);
  std::filesystem::remove(test.root / test.inHome(toolList));
  std::vector<std::string> order;
  test.program().defaults().observer = [&](std::string_view key, const PropertyList*) {
    const bool isListWritten = test.root.exists(test.inHome(toolList));
    if (key == "Tool_Path" || key == office) order.push_back(std::string(key) + (isListWritten ? " after" : " before"));
  };
  test.program().quit();
  EXPECT_EQ(order, (std::vector<std::string>{"Tool_Path before", "Office after"}));
  EXPECT_EQ(stored(test), (std::vector<std::string>{"Word", "Excel", "Mail"}));
  const Dictionary defaults = test.defaultsOnDisk();
  const Array& rows = *defaults.array(office);
  EXPECT_EQ(*rows[0].dictionary()->find(installStatus), PropertyList(true));
  EXPECT_EQ(*rows[1].dictionary()->find(installStatus), PropertyList(false)) << "nothing looks again";
  EXPECT_EQ(*rows[2].dictionary()->find(installStatus), PropertyList(false));
}

TEST(AddinQuit, keepsANewApplicationForgottenUntilTheListIsRemoved) {
  const Resources resources{word, excel};
  TestProgram test(resources.options());
  setUp(test);
  std::filesystem::remove_all(test.root / "Applications/Excel.app");
  for (const char* run : {"first", "second"}) {
    ASSERT_TRUE(test.program().start()) << run;
    EXPECT_EQ(test.interface().addins.officeTableView.numberOfRows(), 1) << run;
    test.program().quit();
    test.drop();
    test.root.makeFolder("Applications/Excel.app");
  }
  ASSERT_TRUE(test.program().construct());
  test.program().defaults().remove(office);
  test.program().defaults().synchronize();
  test.drop();
  ASSERT_TRUE(test.program().start());
  EXPECT_EQ(test.interface().addins.officeTableView.numberOfRows(), 2);
}

TEST(AddinOperations, tellTheStateOnTheDiskByRowOfficeFirst) {
  const Resources resources{mail, word};
  TestProgram test(resources.options());
  setUp(test);
  ASSERT_TRUE(test.program().start());
  test.root.write("Applications/Startup/Tarvo", "");
  const auto status = [&test](const std::string& row) {
    return findOperation("manager.getInstallStatus")->run(test.program(), std::vector<std::string>{row});
  };
  EXPECT_EQ(status("0"), PropertyList(true));
  EXPECT_EQ(status("1"), PropertyList(false));
  for (const char* row : {"2", "-1"}) EXPECT_FALSE(status(row)) << row;
}

TEST(AddinWindows, closeByTheirButtonAndTheirCloseBox) {
  TestProgram test;
  setUp(test);
  ASSERT_TRUE(test.program().start());
  AddinOutlets& addins = test.interface().addins;
  test.interface().manager.officeAddinMenu.userChoose();
  addins.officePowerPointButton.userPress();
  EXPECT_TRUE(addins.alertPowerPoint.isShown());
  addins.alertPowerPoint.userClose();
  EXPECT_FALSE(addins.alertPowerPoint.isShown());
  test.interface().manager.mailMenu.userChoose();
  addins.mailCautionButton.userPress();
  EXPECT_TRUE(addins.alertWindowSL.isShown());
  addins.alertSLCloseButton.userPress();
  EXPECT_FALSE(addins.alertWindowSL.isShown());
  addins.scriptEditorButton.userPress();
  addins.scriptUtilityButton.userPress();
  EXPECT_EQ(test.workspace.launched, (Log{"AppleScript Editor.app", "AppleScript Utility.app"}));
}

// The list that comes with the product: each record leads to something to install, and each edition is there.
TEST(ShippedAddins, haveTheirMacrosAndScripts) {
  TestProgram test;
  ASSERT_TRUE(test.program().construct());
  AddinLists& lists = test.program().rooms().addins;
  ASSERT_TRUE(lists.fDefaultOfficeSetArray());
  const Bundle& bundle = test.product->bundle();
  std::vector<std::string> names;
  for (const AddinLists::SharedEntry& shipped : *lists.fDefaultOfficeSetArray()) {
    names.push_back(addinText(*shipped, appName));
    EXPECT_FALSE(shipped->contains(installStatus));
    const auto item = addinSource(*shipped, bundle);
    ASSERT_TRUE(item) << names.back();
    const bool isFolder = test.product->files().kind(*item) == FileService::Kind::folder;
    EXPECT_EQ(isFolder, kindOf(*shipped) == AddinKind::mail) << names.back();
  }
  std::vector<std::string> expected;
  for (const char* year : {"2011", "2008", "2004"}) {
    for (const char* application : {"Word ", "Excel ", "PowerPoint "})
      expected.push_back(application + std::string(year));
  }
  for (const char* program : {"Mail", "Outlook 2011", "Entourage 2004"}) expected.emplace_back(program);
  EXPECT_EQ(names, expected);
}

}  // namespace
}  // namespace tarvo::test
