// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/operations.h"
#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

namespace tarvo::test {
namespace {

const std::string userFolder = "Library/Application Support/Wordhaven/UserDic/";

class DictionaryDialogs : public testing::Test {
 protected:
  DictionaryDialogs() { test_.writeStyles(sampleRoot()); }
  std::optional<PropertyList> call(const char* name, std::vector<std::string> arguments) {
    return findOperation(name)->run(test_.program(), arguments);
  }
  // What the user does while the picker is open.
  void withPicker(std::function<void()> lines) {
    test_.host.whileModal = [lines = std::move(lines)](Window&) { lines(); };
    test_.interface().lists.ejLoadDicButton.userPress();
  }
  TestProgram test_;
};

TEST_F(DictionaryDialogs, hearOfNewNamesFromTheConstructionOn) {
  test_.program().construct();
  test_.program().notifications().post("newDicNotification", "N.eud2");
  EXPECT_FALSE(test_.root.exists(test_.inHome(userFolder + "N.eud2"))) << "the lists are set up by the loading";
  ASSERT_TRUE(test_.program().load());
  test_.program().notifications().post("newDicNotification", "N.eud2");
  EXPECT_TRUE(test_.root.exists(test_.inHome(userFolder + "N.eud2")));
}

TEST_F(DictionaryDialogs, theUsersListsAreFilledAtTheStartAndWhenTheirPageComesUp) {
  test_.root.write(test_.inHome(userFolder + "a.eud2"), "");
  ASSERT_TRUE(test_.program().start());
  TableView& table = test_.interface().userLists.ejUDTableView;
  EXPECT_EQ(table.reportedRows(), 1);
  EXPECT_EQ(table.cell("name", 0).text, "a.eud2");
  test_.root.write(test_.inHome(userFolder + "b.eud2"), "");
  test_.interface().lists.ejListTab.userSelect(1);
  EXPECT_EQ(table.reportedRows(), 2);
}

TEST_F(DictionaryDialogs, closingThePickerCancelsIt) {
  ASSERT_TRUE(test_.program().start());
  const auto before = test_.stylesOnDisk();
  withPicker([&] {
    PickerOutlets& picker = test_.interface().picker;
    ASSERT_TRUE(picker.myWindow.isShown());
    picker.selectShownButton.userPress();
    picker.myWindow.userClose();
    EXPECT_FALSE(picker.myWindow.isShown());
  });
  EXPECT_EQ(test_.stylesOnDisk(), before);
}

TEST_F(DictionaryDialogs, thePickerShutsOutTheMainWindowAndTheMenus) {
  ASSERT_TRUE(test_.program().start());
  Interface& interface = test_.interface();
  interface.lists.directionTab.userSelect(0);
  withPicker([&] {
    const Windows& windows = test_.program().windows();
    EXPECT_TRUE(windows.isReachable(interface.picker.okButton));
    EXPECT_TRUE(windows.isReachable(interface.picker.newUDButton));
    EXPECT_TRUE(windows.isReachable(interface.picker.filterField));
    EXPECT_FALSE(windows.isReachable(interface.style.stylePopup));
    EXPECT_FALSE(windows.isReachable(interface.style.quitMenu));
    EXPECT_TRUE(windows.isReachable(interface.picker.UserDicTable)) << "through its state: it has no place";
    interface.picker.newUDButton.userPress();
    EXPECT_FALSE(windows.isReachable(interface.picker.okButton)) << "the sheet covers it";
    EXPECT_FALSE(windows.isReachable(interface.picker.UserDicTable)) << "and this, too";
    EXPECT_TRUE(windows.isReachable(interface.picker.newDicOKButton));
    interface.picker.newDicWindow.userClose();
    EXPECT_TRUE(windows.isReachable(interface.picker.okButton));
    interface.picker.cancelButton.userPress();
  });
}

TEST_F(DictionaryDialogs, theSheetOfThePaneLeavesOnlyHelpInTheMenus) {
  test_.engine.probes = {true, false};  // the launch asks nothing
  ASSERT_TRUE(test_.program().start());
  Interface& interface = test_.interface();
  EXPECT_TRUE(interface.newDictionary.newJETMAMenu.userChoose());
  EXPECT_TRUE(interface.newDictionary.NewDicWindow.isShown());
  EXPECT_FALSE(interface.style.quitMenu.isValid());
  EXPECT_FALSE(interface.newDictionary.newEJUDMenu.isValid());
  interface.newDictionary.NewDicWindow.userClose();
  EXPECT_FALSE(interface.newDictionary.NewDicWindow.isShown());
  EXPECT_TRUE(interface.style.quitMenu.isValid());
}

TEST_F(DictionaryDialogs, theSheetOfThePaneComesAfterTheLaunchsQuestion) {
  ASSERT_TRUE(test_.program().start());
  Interface& interface = test_.interface();
  EXPECT_TRUE(interface.newDictionary.newEJUDMenu.userChoose());
  EXPECT_FALSE(interface.newDictionary.NewDicWindow.isShown());
  EXPECT_TRUE(interface.style.quitMenu.isValid()) << "nothing of the pane is up";
  test_.panels.endAlertSheet(1);
  EXPECT_TRUE(interface.newDictionary.NewDicWindow.isShown());
  EXPECT_FALSE(interface.style.quitMenu.isValid());
  interface.newDictionary.NewDicCancelButton.userPress();
  EXPECT_TRUE(interface.style.quitMenu.isValid());
}

TEST_F(DictionaryDialogs, menusAndButtonsAskForTheSameKinds) {
  test_.engine.probes = {true, false};  // the launch asks nothing
  ASSERT_TRUE(test_.program().start());
  NewDictionaryOutlets& sheet = test_.interface().newDictionary;
  struct Way {
    MenuItem& menu;
    Button& button;
    const char* prompt;
  };
  for (const Way& way : {Way{sheet.newEJUDMenu, sheet.ejUDNewButton, "NewEJUDText"},
                         Way{sheet.newJEUDMenu, sheet.jeUDNewButton, "NewJEUDText"},
                         Way{sheet.newEJTMAMenu, sheet.ejTMANewButton, "NewEJTMAText"},
                         Way{sheet.newJETMAMenu, sheet.jeTMANewButton, "NewJETMAText"}}) {
    way.menu.userChoose();
    EXPECT_EQ(sheet.NewDicText.stringValue(), way.prompt);
    sheet.NewDicText.setStringValue("");
    sheet.NewDicCancelButton.userPress();
    way.button.userPress();
    EXPECT_EQ(sheet.NewDicText.stringValue(), way.prompt);
    sheet.NewDicCancelButton.userPress();
  }
}

TEST_F(DictionaryDialogs, folderButtonsOpenTheFolderOfTheirKind) {
  ASSERT_TRUE(test_.program().start());
  NewDictionaryOutlets& pane = test_.interface().newDictionary;
  PickerOutlets& picker = test_.interface().picker;
  const ProductPaths& paths = test_.product->paths();
  for (Button* button :
       {&pane.ejUDFolderButton, &pane.jeUDFolderButton, &picker.openUDFolderButton, &pane.ejTMAFolderButton,
        &pane.jeTMAFolderButton, &picker.openTMAFolderButton, &picker.openTDFolderButton}) {
    button->userPress();
  }
  const std::string user = paths.tarvoPathUserDicFolderURL().text(), memory = paths.tarvoPathUserTmaFolderURL().text();
  EXPECT_EQ(test_.workspace.opened, (std::vector<std::string>{user, user, user, memory, memory, memory,
                                                              paths.tarvoPathTechnicalDicEngFolderURL().text()}));
}

TEST_F(DictionaryDialogs, areOpenToScriptsByName) {
  ASSERT_TRUE(test_.program().start());
  test_.workspace.running = {test_.product->paths().tarvoPathGetAppleyPath(4).text()};
  EXPECT_EQ(call("picker.isStartedApplication", {"4"}), PropertyList(true));
  EXPECT_EQ(call("style.isStartedApplication", {"4"}), PropertyList(true));
  EXPECT_EQ(call("style.isStartedApplication", {"5"}), PropertyList(false));
  EXPECT_EQ(call("style.alertStartedApplication", {"2"}), std::nullopt);
  EXPECT_EQ(call("picker.setCreatedDictionary", {"m", "1"}), std::nullopt);
  EXPECT_EQ(call("picker.getCheckedArray", {"1"}), PropertyList(Array{"m"}));
  EXPECT_EQ(call("picker.setNotSelectedArray", {"x.TRet", "y.TRet", "0"}), std::nullopt);
  EXPECT_EQ(test_.interface().picker.techDicTable.reportedRows(), 2);
  EXPECT_EQ(call("picker.setNotSelectedArray", {"0"}), std::nullopt);
  EXPECT_EQ(test_.interface().picker.techDicTable.reportedRows(), 0);
  EXPECT_EQ(call("style.setNonSelectionDic", {"1"}), std::nullopt);
  const int offered = test_.interface().picker.techDicTable.reportedRows();
  EXPECT_GT(offered, 0);
  test_.log.clear();
  EXPECT_EQ(call("style.openMaxOverAlert", {"1"}), std::nullopt);
  EXPECT_EQ(test_.log, (Log{"beep", "alert MaxOverUDAlertHeader / MaxOverUDAlertContents"}));
  EXPECT_EQ(call("style.setSelectedDic", {"1"}), std::nullopt);
  EXPECT_FALSE(test_.program().rooms().lists.ejTDController().selectedDictionary()) << "nothing is ticked";
}

}  // namespace
}  // namespace tarvo::test
