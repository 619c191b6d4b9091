// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/plist/plist_writer.h"
#include "tests/style/exchange_world.h"
#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

// Styles that come from a file or the engine, as the whole program takes and shows them.
namespace tarvo::test {
namespace {

const std::string importFailed = "alert ImportPlistErrorHeader / ImportPlistErrorMessage";
const std::string question = "alert OpenImportHeader / OpenImportMessage";

class StyleTravel : public testing::Test {
 protected:
  StyleTravel() { test_.writeStyles(sampleRoot()); }
  void start(std::deque<bool> probes = {true, false}) {  // the launch shows nothing
    test_.engine.probes = std::move(probes);
    ASSERT_TRUE(test_.program().start());
    test_.program().rooms().store.didWrite = [this] { test_.log.push_back("wrote"); };
    test_.log.clear();
  }
  std::string fileWith(const PropertyList& style) {
    test_.root.write("in.whstyle", writePropertyList(style));
    return "/in.whstyle";
  }
  void choose(int index) {
    ASSERT_TRUE(test_.interface().style.stylePopup.userChoose(index));
    test_.log.clear();
  }
  bool import(const std::string& path) {
    return test_.program().styles().readImportStyle(test_.product->locations().onDisk(ProductPath(path)));
  }
  Dictionary record(int index) { return *test_.program().rooms().store.getStyleAtIndex(index); }
  std::vector<int> options() {
    std::vector<int> all;
    for (PopUpButton& popup : test_.interface().options.indexPopups) all.push_back(popup.indexOfSelectedItem());
    return all;
  }
  std::vector<std::string> rows(TableView& table) {
    std::vector<std::string> all;
    for (int row = 0; row < table.numberOfRows(); ++row) all.push_back(table.cell("name", row).text);
    return all;
  }
  // An engine with a newer set of two styles without dictionaries.
  void setNewerStyles(const char* secondName = "Two") {
    Dictionary first = record(1), second = record(1);
    first.set("Name", "One");
    second.set("Name", secondName);
    test_.engine.holds = test_.engine.isNewer = true;
    test_.engine.held = {first, second};
    test_.engine.heldStamp = "P9";
    test_.program().defaults().set("LastUpdate", "U0");
    test_.log.clear();
  }
  void post() { test_.program().notifications().post("SendPlistNoti", "whoever"); }
  Interface& interface() { return test_.interface(); }

  TestProgram test_;
};

TEST_F(StyleTravel, showsAnImportedStyleAtOnce) {
  start();
  choose(1);
  EXPECT_TRUE(import(fileWith(importedStyle())));
  EXPECT_EQ(test_.log, (Log{"wrote", "unreachable"}));
  EXPECT_EQ(options(), (std::vector<int>{1, 1, 1, 2, 2, 2, 1}));
  EXPECT_EQ(rows(interface().lists.ejTDTable), std::vector<std::string>{"d"});
  EXPECT_EQ(rows(interface().lists.jeTDTable), std::vector<std::string>{"j3"});
  EXPECT_TRUE(interface().lists.ejLoadDicButton.isEnabled());
  EXPECT_EQ(*test_.stylesOnDisk().array("Style")->at(1).dictionary()->string("K"), "v");
}

TEST_F(StyleTravel, keepsTheRowsShownWhereAnImportedStyleNamesNone) {
  start();
  Dictionary style = importedStyle();
  style.dictionary("EJ")->remove("TD");
  EXPECT_TRUE(import(fileWith(style)));
  EXPECT_EQ(rows(interface().lists.ejTDTable), (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_FALSE(record(0).dictionary("EJ")->contains("TD"));
}

TEST_F(StyleTravel, keepsADictionaryOfAnImportedStyleThatIsNotHere) {
  start();
  choose(1);
  Dictionary style = importedStyle();
  style.dictionary("EJ")->set("TD", Array{"zz.TRet"});
  EXPECT_TRUE(import(fileWith(style)));
  EXPECT_EQ(test_.log, (Log{"wrote", "unreachable"}));
  EXPECT_EQ(*record(1).dictionary("EJ")->find("TD"), PropertyList(Array{"zz.TRet"}));
  EXPECT_EQ(interface().lists.ejTDTable.numberOfRows(), 0);
}

TEST_F(StyleTravel, importsUnderTheNameThatWasJustGiven) {
  start();
  choose(1);
  interface().naming.StyleNameEditButton.userPress();
  interface().naming.styleNameField.userType("Gamma");
  interface().naming.snOKButton.userPress();
  EXPECT_TRUE(import(fileWith(importedStyle())));
  EXPECT_EQ(*record(1).string("Name"), "Gamma");
}

TEST_F(StyleTravel, importsWhatTheUserChooses) {
  start();
  choose(3);
  interface().exchange.importMenu.userChoose();
  EXPECT_EQ(test_.log, Log{"open panel"}) << "cancelled";
  const std::string path = test_.root / "in.whstyle";
  fileWith(importedStyle());
  test_.panels.paths = {path};
  interface().exchange.importMenu.userChoose();
  EXPECT_EQ(*record(3).string("K"), "v");
  EXPECT_EQ(*record(3).string("Name"), "Beta");
}

TEST_F(StyleTravel, changesNothingWhenAnImportIsRefused) {
  start();
  test_.engine.online = true;
  EXPECT_FALSE(import(fileWith(sampleRoot())));
  EXPECT_EQ(test_.log, Log{importFailed});
  EXPECT_EQ(test_.defaultsOnDisk().find("LastUpdate"), nullptr);
}

TEST_F(StyleTravel, needsTheStylePane) {
  start();
  ExportOutlets& menus = interface().exchange;
  test_.program().manager().changeOfficeToolbar();
  EXPECT_FALSE(menus.importMenu.userChoose());
  EXPECT_FALSE(menus.exportMenu.userChoose());
  EXPECT_TRUE(menus.exportWindowMenu.isValid());
  test_.program().styles().handleCallerCode("tMG8");
  EXPECT_TRUE(menus.importMenu.isValid());
}

TEST_F(StyleTravel, asksBeforeAnOpenedFileReplacesAStyle) {
  start();
  choose(3);
  test_.program().requests().openStyleFile(test_.root.at("in.whstyle"));
  fileWith(importedStyle());
  EXPECT_EQ(test_.log, Log{question}) << "the default button cancels";
  EXPECT_EQ(test_.panels.alerts.back().buttons, (std::vector<std::string>{"OpenImport.Cancel", "OpenImport.Replace"}));
  EXPECT_EQ(PropertyList(record(3)), sampleRoot().array("Style")->at(3));
  test_.panels.buttons = {1};
  test_.log.clear();
  test_.program().requests().openStyleFile(test_.root.at("in.whstyle"));
  EXPECT_EQ(test_.log, (Log{question, "wrote", "unreachable"}));
  EXPECT_EQ(*record(3).string("K"), "v");
}

TEST(OpenedStyleFile, isNamedTogetherWithTheStyleItReplaces) {
  TestProgram test({.language = "en", .strings = {"/dev/null"}});
  test.writeStyles(sampleRoot());
  test.engine.probes = {true, false};
  ASSERT_TRUE(test.program().start());
  test.interface().style.stylePopup.userChoose(3);
  test.program().requests().openStyleFile(test.root.at("特許.whstyle"));
  const Alert& asked = test.panels.alerts.back();
  EXPECT_NE(asked.title.find("Beta"), std::string::npos) << asked.title;
  EXPECT_NE(asked.message.find("特許.whstyle"), std::string::npos) << asked.message;
  EXPECT_EQ((asked.title + asked.message).find("%@"), std::string::npos);
}

TEST_F(StyleTravel, bringsTheStylePaneForwardForAnOpenedFile) {
  start();
  test_.program().manager().changeOfficeToolbar();
  test_.program().requests().openStyleFile(test_.root.at("in.whstyle"));
  EXPECT_EQ(interface().manager.myTabView.selectedPage(), 0);
  EXPECT_EQ(interface().manager.toolbar.selectedItemIdentifier(), "StyleManager");
}

TEST_F(StyleTravel, beepsWhenAFileIsOpenedWhileSomethingWaitsForTheUser) {
  start();
  const std::string path = test_.root / "in.whstyle";
  fileWith(importedStyle());
  const auto open = [&] {
    test_.log.clear();
    test_.program().requests().openStyleFile(DiskPath(path));
    EXPECT_EQ(test_.log, Log{"beep"});
  };
  interface().newDictionary.newEJUDMenu.userChoose();
  open();
  interface().newDictionary.NewDicCancelButton.userPress();
  test_.host.whileModal = [&](Window&) { open(); };
  interface().lists.ejLoadDicButton.userPress();
  interface().exchange.exportMenu.userChoose();
  open();
  test_.panels.endSavePanel(0, "");
  test_.panels.whileUp = open;
  interface().exchange.importMenu.userChoose();
  interface().addins.officeSearchButton.userPress();
  test_.panels.whileUp = nullptr;
  test_.log.clear();
  test_.program().requests().openStyleFile(DiskPath(path));
  EXPECT_EQ(test_.log, Log{question}) << "nothing waits any more";
}

TEST_F(StyleTravel, keepsAFileForTheTimeAfterTheLaunchsQuestion) {
  start({false});
  test_.program().requests().openStyleFile(test_.root.at("in.whstyle"));
  EXPECT_EQ(test_.log, Log{"beep"});
  test_.panels.endAlertSheet(1);
  EXPECT_EQ(test_.log, (Log{"beep", question}));
  test_.runLoop.advance(10);
  EXPECT_EQ(test_.log, (Log{"beep", question})) << "once";
}

TEST_F(StyleTravel, exchangesStylesBeforeTheFileThatWasKeptComes) {
  start({true, true});
  fileWith(importedStyle());
  test_.runLoop.holds = true;
  for (const char* file : {"other.whstyle", "in.whstyle"})
    test_.program().requests().openStyleFile(test_.root.at(file));
  test_.runLoop.run();
  interface().connection.sslOKButton.userPress();
  test_.runLoop.run();
  EXPECT_EQ(test_.log, (Log{"beep", "beep", "holds none", "register 4", question})) << "the last one";
}

TEST_F(StyleTravel, keepsAFileAlsoUntilThePanelThatFollowsAFailure) {
  start({false});
  test_.panels.endAlertSheet(0);
  test_.runLoop.advance(2);
  test_.program().requests().openStyleFile(test_.root.at("in.whstyle"));
  EXPECT_EQ(test_.log, Log{"beep"});
  test_.log.clear();
  interface().connection.sslOKButton.userPress();
  EXPECT_EQ(std::count(test_.log.begin(), test_.log.end(), question), 1);
}

TEST_F(StyleTravel, storesTheStampThenShowsAndWritesNewerStyles) {
  start();
  test_.engine.online = true;
  setNewerStyles();
  Dictionary atWrite;
  test_.program().rooms().store.didWrite = [&] {
    test_.log.push_back("wrote");
    atWrite = test_.defaultsOnDisk();
  };
  post();
  EXPECT_EQ(test_.log, (Log{"holds", "request \"U0\"", "wrote"})) << "no probe, no registration";
  EXPECT_EQ(*atWrite.string("LastUpdate"), "P9");
  Dictionary expected = sampleRoot();
  expected.set("Style", test_.engine.held);
  EXPECT_EQ(test_.stylesOnDisk(), expected);
  EXPECT_EQ(interface().style.stylePopup.items().size(), 2U);
  EXPECT_EQ(interface().style.stylePopup.items()[0].title, "One");
}

TEST_F(StyleTravel, registersTheNextChangeAfterTakingStylesOver) {
  start();
  test_.engine.online = true;
  setNewerStyles();
  post();
  test_.log.clear();
  interface().options.indexPopups[0].userChoose(2);
  EXPECT_EQ(test_.log, (Log{"wrote", "reachable", "register 2"}));
  EXPECT_EQ(*test_.defaultsOnDisk().string("LastUpdate"), "U1");
}

TEST_F(StyleTravel, fillsNoOptionIntoStylesThatTheEngineHolds) {
  start();
  setNewerStyles();
  test_.engine.held[0].dictionary()->dictionary("JE")->remove("TOpt2");
  post();
  EXPECT_EQ(options()[4], 0);
  EXPECT_FALSE(test_.stylesOnDisk().array("Style")->at(0).dictionary()->dictionary("JE")->contains("TOpt2"));
}

TEST_F(StyleTravel, drawsADividerThatTheEngineHolds) {
  start();
  setNewerStyles("keyNameSeparator");
  post();
  EXPECT_FALSE(interface().style.stylePopup.items()[0].separator);
  EXPECT_TRUE(interface().style.stylePopup.items()[1].separator);
}

TEST_F(StyleTravel, writesNoFileWhereNoChoiceIsRemembered) {
  Dictionary root = sampleRoot();
  root.remove("Selection");
  test_.writeStyles(root);
  start();
  setNewerStyles();
  post();
  EXPECT_EQ(test_.log, (Log{"holds", "request \"U0\""}));
  EXPECT_EQ(test_.stylesOnDisk(), root);
  EXPECT_EQ(*test_.defaultsOnDisk().string("LastUpdate"), "P9");
  EXPECT_EQ(*record(0).string("Name"), "One");
}

TEST_F(StyleTravel, choosesTheToolThatIsStoredAndItsRememberedStyle) {
  start();
  setNewerStyles();
  test_.program().defaults().set("SMSelectedTag", "QB");
  test_.engine.held.resize(5, test_.engine.held[0]);
  test_.engine.held[3].dictionary()->dictionary("EJ")->set("Opt1", 2);
  post();
  EXPECT_EQ(test_.program().rooms().store.currentID(), "QB");
  EXPECT_EQ(interface().style.stylePopup.indexOfSelectedItem(), 3);
  EXPECT_EQ(options()[0], 2);
  test_.program().defaults().set("SMSelectedTag", "GONE");
  post();
  EXPECT_EQ(test_.program().rooms().store.currentID(), "MG");
  EXPECT_EQ(*test_.defaultsOnDisk().string("SMSelectedTag"), "MG");
}

TEST_F(StyleTravel, choosesNoStyleWhereTheRememberedOneIsNotAmongThoseTakenOver) {
  start();
  test_.program().styles().handleCallerCode("tQB8");
  setNewerStyles();
  post();
  EXPECT_EQ(interface().style.stylePopup.indexOfSelectedItem(), -1);
  EXPECT_EQ(test_.stylesOnDisk().dictionary("Selection")->integerValue("QB"), -1);
  EXPECT_EQ(interface().lists.ejTDTable.numberOfRows(), 0);
}

TEST_F(StyleTravel, showsTheFirstPagesAndTheRightButtonsAfterTakingStylesOver) {
  start();
  interface().options.ejEditPopup.userChoose(1);
  interface().options.jeEditPopup.userChoose(1);
  setNewerStyles();
  choose(1);
  post();
  EXPECT_EQ(interface().style.stylePopup.indexOfSelectedItem(), 1);
  EXPECT_TRUE(interface().naming.StyleNameEditButton.isEnabled());
  EXPECT_EQ(interface().options.ejEditPopup.indexOfSelectedItem(), 0);
  EXPECT_EQ(interface().options.jeEditTab.selectedPage(), 0);
  EXPECT_TRUE(interface().lists.ejLoadDicButton.isEnabled());
  choose(0);
  post();
  EXPECT_FALSE(interface().naming.StyleNameEditButton.isEnabled());
}

TEST_F(StyleTravel, agreesWithTheEngineOncePerPost) {
  start();
  test_.engine.holds = true;
  post();
  post();
  EXPECT_EQ(test_.log, (Log{"holds", "request \"\"", "holds", "request \"\""}));
  test_.engine.holds = false;
  test_.log.clear();
  post();
  EXPECT_EQ(test_.log, (Log{"holds none", "register 4"})) << "no probe, no write";
}

TEST_F(StyleTravel, agreesWithTheEngineAtTheLaunchAfterAConsent) {
  Dictionary defaults;
  defaults.set("ConnectServer", true);
  test_.root.write(test_.inHome("Library/Preferences/com.wordhaven.TarvoManager.plist"), writePropertyList(defaults));
  test_.engine.probes = {true, true};
  test_.engine.holds = true;
  ASSERT_TRUE(test_.program().start());
  EXPECT_EQ(test_.log, (Log{"reachable", "reachable", "holds", "request \"\""}));
}

TEST_F(StyleTravel, agreesWithTheEngineAsSoonAsTheUserConsents) {
  start({true, true});
  interface().connection.sslOKButton.userPress();
  EXPECT_EQ(test_.log, (Log{"holds none", "register 4"}));
  EXPECT_EQ(*test_.defaultsOnDisk().find("ConnectServer"), PropertyList(false));
}

TEST_F(StyleTravel, registersARenameOnceTheEngineIsBack) {
  start();
  choose(3);
  interface().naming.StyleNameEditButton.userPress();
  interface().naming.styleNameField.userType("Gamma");
  test_.program().notifications().onPost = [this](const Notification& posted) { test_.log.push_back(posted.name); };
  interface().naming.snOKButton.userPress();
  EXPECT_EQ(test_.log, (Log{"wrote", "unreachable"})) << "a new name is no new dictionary";
  test_.engine.online = true;
  choose(0);
  EXPECT_EQ(*test_.engine.registered[3].dictionary()->string("Name"), "Gamma");
}

TEST_F(StyleTravel, leavesOnlyHelpInTheMenusWhileANameIsAsked) {
  start();
  choose(3);
  interface().naming.StyleNameEditButton.userPress();
  HelpOutlets& help = interface().help;
  EXPECT_TRUE(help.helpMenu.isValid() && help.homepageMenu.isValid() && help.supportMenu.isValid());
  EXPECT_FALSE(help.oldTechMenu.isValid());
  EXPECT_FALSE(interface().exchange.importMenu.isValid());
  EXPECT_FALSE(interface().exchange.exportWindowMenu.isValid());
  interface().naming.styleNameWindow.userClose();
  EXPECT_TRUE(help.oldTechMenu.isValid());
}

TEST_F(StyleTravel, theExportPanelLeavesTheMenusAsTheyAre) {
  start();
  choose(3);
  interface().exchange.exportMenu.userChoose();
  EXPECT_FALSE(test_.program().rooms().flags.gMenuControllFlag);
  EXPECT_TRUE(interface().style.quitMenu.isValid());
  test_.panels.endSavePanel(1, test_.root / "out.whstyle");
  EXPECT_TRUE(test_.root.exists("out.whstyle"));
}

TEST_F(StyleTravel, theConsentWaitsUntilTheSavePanelIsGone) {
  start({false});
  test_.panels.endAlertSheet(0);
  choose(3);
  interface().exchange.exportMenu.userChoose();
  test_.runLoop.advance(2);
  EXPECT_FALSE(interface().connection.sslPanel.isShown());
  test_.panels.endSavePanel(0, "");
  test_.runLoop.advance(2);
  EXPECT_TRUE(interface().connection.sslPanel.isShown());
}

TEST(Launch, asksNothingBeforeTheScreenCautionIsClosed) {
  TestProgram test;
  test.root.write("System/Library/CoreServices/SystemVersion.plist",
                  "<plist><dict><key>ProductVersion</key><string>10.6.8</string></dict></plist>");
  Dictionary defaults;
  defaults.set("NoDialogState", 0);
  test.root.write(test.inHome("Library/Preferences/com.wordhaven.TarvoManager.plist"), writePropertyList(defaults));
  test.writeStyles(sampleRoot());
  test.host.screen = {0, 0, 800, 600};
  bool wasUp = false;
  test.host.whileModal = [&](Window& window) {
    wasUp = &window == &test.interface().manager.displayAlertWindow;
    EXPECT_EQ(test.log, Log{});
  };
  ASSERT_TRUE(test.program().start());
  EXPECT_TRUE(wasUp);
  EXPECT_EQ(test.log.front(), "unreachable");
}

TEST(Launch, asksOnceHoweverTheWindowIsUsed) {
  TestProgram test;
  test.writeStyles(sampleRoot());
  test.engine.online = true;
  ASSERT_TRUE(test.program().start());
  EXPECT_EQ(test.log, (Log{"reachable", "reachable"}));
  test.interface().connection.sslOKButton.userPress();
  test.log.clear();
  test.program().manager().changeOfficeToolbar();
  test.program().windows().orderOut(test.interface().manager.myWindow);
  test.program().windows().orderFront(test.interface().manager.myWindow);
  test.program().requests().eventText("offi");
  EXPECT_EQ(test.log, Log{});
}

}  // namespace
}  // namespace tarvo::test
