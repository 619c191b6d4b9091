// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <memory>

#include "app/operations.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"
#include "platform/services/style_module.h"
#include "style/style_keys.h"
#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

// Starting and ending the program, where a test has to look behind the controls.
namespace tarvo::test {
namespace {

std::string pathsFile(const TestProgram& test, const Dictionary& paths) {
  test.root.write("paths.plist", writePropertyList(paths));
  return test.root / "paths.plist";
}

TEST(StartUp, beginsWithNoToolNoStylesAndTheRegistrationOff) {
  TestProgram test;
  EXPECT_TRUE(test.program().rooms().store.isAwakening());
  EXPECT_EQ(test.program().rooms().store.currentID(), "");
  EXPECT_TRUE(test.program().rooms().store.root().empty());
  EXPECT_EQ(test.program().rooms().lists.shownDirection(), Direction::englishToJapanese);
  EXPECT_FALSE(test.root.exists(test.inHome("Library")));
}

TEST(StartUp, hearsOfTheEngineFromTheConstructionOn) {
  TestProgram test;
  test.program().notifications().post("SendPlistNoti");
  EXPECT_EQ(test.log, Log{});
  ASSERT_TRUE(test.program().construct());
  test.program().notifications().post("SendPlistNoti");
  EXPECT_EQ(test.log, Log{"holds none"}) << "no styles are loaded, so none are sent";
}

TEST(StartUp, tellsTheStyleModuleWhereEverythingLiesInOrder) {
  TestProgram test;
  FakeStyleModule module(test.log);
  const Surroundings around = test.program().services();
  test.drop();
  Program program({{around.locations, around.files, around.bundle, around.texts, around.paths, around.engine, module,
                    around.runLoop, around.windowHost, around.workspace, around.scripts},
                   test.panels});
  ASSERT_TRUE(program.construct());
  const std::string product = test.root / "Library/Application Support/Wordhaven/TarvoEiwa/TechDic/";
  const std::string home = test.root / "Users/taro";
  EXPECT_EQ(test.log, (Log{"tarvoStyleInitialize",
                           "tarvoStyleSetTStyleUrl " + home + "/Library/Preferences/Wordhaven/TarvoStyle2009.plist",
                           "tarvoStyleSetTechDictUrl " + product + "EJ " + product + "JE",
                           "tarvoStyleSetUserDictUrl " + home + "/Library/Application Support/Wordhaven/UserDic"}));
  EXPECT_TRUE(around.paths.isInitialized());
}

TEST(StartUp, endsTheModulesWithTheController) {
  TestProgram test;
  ASSERT_TRUE(test.program().construct());
  EXPECT_TRUE(test.product->paths().isInitialized());
  test.drop();
  EXPECT_FALSE(test.product->paths().isInitialized());
}

// Whichever goes first leaves the other whole: each has its own module, and the path module stays up for the last.
TEST(StartUp, twoProgramsOfOneProcessLiveAndEndApart) {
  TestProgram test;
  test.writeStyles(sampleRoot());
  Product& product = *test.product;
  const auto make = [&] {
    return std::make_unique<Program>(
        product.services(product.files(), test.engine, test.runLoop, test.panels, test.host, test.workspace));
  };
  for (const bool firstGoesFirst : {true, false}) {
    std::unique_ptr<Program> first = make(), second = make();
    ASSERT_TRUE(first->start() && second->start());
    (firstGoesFirst ? first : second).reset();
    EXPECT_TRUE(product.paths().isInitialized());
    Program& left = firstGoesFirst ? *second : *first;
    const DiskPath& list = left.rooms().toolList.path();
    ASSERT_TRUE(product.files().remove(list));
    left.interface().tools.officeToolPopup.userChoose(2);
    EXPECT_TRUE(product.files().isThere(list));
    left.quit();
  }
  EXPECT_FALSE(product.paths().isInitialized());
}

TEST(StartUp, aControllerThatIsGoneHearsNoNotification) {
  TestProgram test;
  test.writeStyles(sampleRoot());
  Program& program = test.program();
  ASSERT_TRUE(program.start());
  std::vector<std::string> shown;
  program.windows().observer = [&](Windows::Event, Window& window, int) { shown.push_back(window.title()); };
  {
    TManagerController second(program.interface(), program.rooms(), program.services(), program.defaults(),
                              program.notifications(), program.windows(), [] {});
    ASSERT_TRUE(second.init());
    program.notifications().post("ChangeOfficeToolbar");
    EXPECT_EQ(shown.size(), 2U);
  }
  program.notifications().post("ChangeToolbar");
  EXPECT_EQ(shown.size(), 3U);
}

TEST(StartUp, endsAtOnceWithTheModulesCodeWhenTheyCannotBeStarted) {
  TestProgram first;
  Dictionary paths;
  paths.set("tarvoPathLoadDictAndHelper", 42);
  first.root.write("texts.plist", writePropertyList([] {
                     Dictionary table;
                     table.set("Failed Instlation Contents", "Code %d, %d of %@ 100%");
                     return table;
                   }()));
  TestProgram test({.paths = pathsFile(first, paths), .strings = {"none", first.root / "texts.plist"}});
  test.writeStyles(sampleRoot());
  EXPECT_FALSE(test.program().start());
  EXPECT_EQ(test.log, (Log{"alert  / Code 42, %d of %@ 100%", "terminated"}));
  EXPECT_EQ(test.panels.alerts.front().buttons, std::vector<std::string>{"AlertClose"});
  EXPECT_FALSE(test.root.exists(test.inHome("Library/Scripts")));
  EXPECT_TRUE(test.defaultsOnDisk().empty());
}

TEST(StartUp, storesNothingWhenTheStylePaneCannotStart) {
  TestProgram test;
  test.root.write(test.inHome("Library/Preferences/Wordhaven/TarvoStyle2009.plist"), "damaged");
  EXPECT_FALSE(test.program().start());
  EXPECT_EQ(test.log, (Log{"beep", "alert ApplicationCautionHeader / ApplicationCautionMessage", "terminated"}));
  EXPECT_EQ(test.root.read(test.inHome(TestProgram::stylePath)), "damaged");
  EXPECT_FALSE(test.root.exists(test.inHome("Library/Preferences/Wordhaven/TarvoManager.txt")));
  EXPECT_EQ(test.defaultsOnDisk().find("ToolbarTag"), nullptr);
}

TEST(StartUp, opensTheWindowJustAsLargeAsTheStylePaneOnAFirstStart) {
  TestProgram test;
  test.writeStyles(sampleRoot());
  ASSERT_TRUE(test.program().start());
  const Rect& frame = test.interface().manager.myWindow.frame();
  EXPECT_EQ(frame.width, rowOf(Pane::style).size.width);
  EXPECT_EQ(frame.height, rowOf(Pane::style).size.height + FakeHost::titleBar + FakeHost::toolbar);
  EXPECT_EQ(test.defaultsOnDisk().find("MyWindowFrame"), nullptr);
}

TEST(StartUp, makesTheUserFoldersForEverybody) {
  TestProgram test;
  test.writeStyles(sampleRoot());
  ASSERT_TRUE(test.program().start());
  for (const char* folder : {"UserDic", "UserTMA"}) {
    EXPECT_EQ(test.root.mode(test.inHome("Library/Application Support/Wordhaven/") + folder), 0777U);
  }
}

TEST(Quitting, storesOnceAndTellsOnce) {
  TestProgram test;
  test.writeStyles(sampleRoot());
  ASSERT_TRUE(test.program().start());
  test.log.clear();
  const std::string before = test.root.read(test.inHome(TestProgram::stylePath));
  test.program().styles().quitAction();
  test.program().quit();
  EXPECT_EQ(test.log, Log{"terminated"});
  EXPECT_EQ(test.root.read(test.inHome(TestProgram::stylePath)), before);
}

TEST(Quitting, endsTheProgramWhenTheWindowCloses) {
  TestProgram test;
  test.writeStyles(sampleRoot());
  ASSERT_TRUE(test.program().start());
  test.interface().manager.myWindow.userClose();
  EXPECT_TRUE(test.program().isTerminated());
}

TEST(Toolbar, givesAnItemsOwnViewTheSizeOfItsPane) {
  struct Extra : Outlets {
    Extra() : Outlets("extra") {}
    View view{*this, "view"};
  } extra;
  TestProgram test;
  test.writeStyles(sampleRoot());
  ASSERT_TRUE(test.program().start());
  ManagerOutlets& manager = test.interface().manager;
  manager.toolbar.setAllowedItems({{"StyleManager", &manager.StyleManager}, {"OA", &manager.OA, &extra.view}});
  manager.StyleManager.userPress();
  EXPECT_EQ(extra.view.frame(), Rect());
  manager.OA.userPress();
  EXPECT_EQ(extra.view.frame(), (Rect{0, 0, rowOf(Pane::office).size.width, rowOf(Pane::office).size.height}));
}

TEST(Toolbar, isNoMoveWhenItIsHiddenAndKeepsTheTopEdge) {
  TestProgram test;
  test.writeStyles(sampleRoot());
  ASSERT_TRUE(test.program().start());
  Window& window = test.interface().manager.myWindow;
  const Rect before = window.frame();
  test.host.toolbarHidden = true;
  test.interface().manager.toolbarMenu.userChoose();
  EXPECT_EQ(window.frame().top(), before.top());
  EXPECT_EQ(window.frame().height, before.height - FakeHost::toolbar);
  EXPECT_EQ(test.defaultsOnDisk().find("MyWindowFrame"), nullptr);
  EXPECT_FALSE(test.defaultsOnDisk().dictionary("Toolbar tarvoToolbar")->find("Shown")->booleanValue());
}

TEST(StyleMenu, keepsItsItemsWhereTheFileHasNoStyles) {
  TestProgram test;
  Dictionary root;
  root.set("Selection", Dictionary());
  test.writeStyles(root);
  ASSERT_TRUE(test.program().construct());
  test.interface().style.stylePopup.setItems({{"X", 0}, {"Y", 1}});
  ASSERT_TRUE(test.program().load());
  EXPECT_EQ(test.interface().style.stylePopup.items().size(), 2U);
}

TEST(Operations, areFoundByOwnerAndNameAndAnswerWhatTheyKnow) {
  TestProgram test;
  test.root.write("System/Library/CoreServices/SystemVersion.plist", writePropertyList([] {
                    Dictionary version;
                    version.set("ProductVersion", "10.6.8");
                    return version;
                  }()));
  ASSERT_TRUE(test.program().construct());
  EXPECT_EQ(findOperation("getOSVersion"), nullptr);
  EXPECT_EQ(findOperation("style.getOSVersion")->run(test.program(), {}), PropertyList(106));
  EXPECT_EQ(findOperation("manager.createMailScriptFolder")->run(test.program(), {}), PropertyList(true));
}

}  // namespace
}  // namespace tarvo::test
