// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/app/style_travel_fixture.h"

namespace tarvo::test {
namespace {

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

}  // namespace
}  // namespace tarvo::test
