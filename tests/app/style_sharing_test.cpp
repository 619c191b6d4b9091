// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "tests/app/style_travel_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(StyleTravel, storesTheStampThenShowsAndWritesNewerStyles) {
  start();
  test_.engine.online = true;
  setNewerStyles();
  Dictionary atWrite;
  test_.program().rooms().store.didWrite = [&] {
    test_.log.emplace_back("wrote");
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

}  // namespace
}  // namespace tarvo::test
