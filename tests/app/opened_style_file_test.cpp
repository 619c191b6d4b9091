// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/app/style_travel_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(StyleTravel, asksBeforeAnOpenedFileReplacesAStyle) {
  start();
  choose(3);
  fileWith(importedStyle());
  test_.program().requests().openStyleFile(test_.root.at("in.whstyle"));
  EXPECT_EQ(test_.log, Log{question}) << "the default button cancels";
  EXPECT_EQ(test_.panels.alerts.back().buttons, (std::vector<std::string>{"OpenImport.Cancel", "OpenImport.Replace"}));
  EXPECT_EQ(PropertyList(record(3)), sampleRoot().array("Style")->at(3));
  test_.panels.buttons = {1};
  test_.log.clear();
  test_.program().requests().openStyleFile(test_.root.at("in.whstyle"));
  EXPECT_EQ(test_.log, (Log{question, "wrote", "unreachable"}));
  EXPECT_EQ(*record(3).string("K"), "v");
}

TEST_F(StyleTravel, asksNothingAboutAnOpenedFileThatIsNoStyle) {
  start();
  Dictionary broken = importedStyle();
  broken.dictionary("JE")->set("TOpt3", 4);
  fileWith(broken);
  test_.program().requests().openStyleFile(test_.root.at("in.whstyle"));
  EXPECT_EQ(test_.log, Log{importFailed});
  EXPECT_EQ(test_.panels.told.size(), 1U);
}

TEST_F(StyleTravel, importsWhatWasReadBeforeTheQuestion) {
  start();
  choose(3);
  fileWith(importedStyle());
  test_.panels.buttons = {1};
  test_.panels.whileUp = [&] { test_.root.write("in.whstyle", "changed meanwhile"); };
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
  test.root.write("特許.whstyle", writePropertyList(importedStyle()));
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
  fileWith(importedStyle());
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
  fileWith(importedStyle());
  test_.panels.endAlertSheet(0);
  test_.runLoop.advance(2);
  test_.program().requests().openStyleFile(test_.root.at("in.whstyle"));
  EXPECT_EQ(test_.log, Log{"beep"});
  test_.log.clear();
  interface().connection.sslOKButton.userPress();
  EXPECT_EQ(std::count(test_.log.begin(), test_.log.end(), question), 1);
}

}  // namespace
}  // namespace tarvo::test
