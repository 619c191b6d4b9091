// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_naming.h"

#include <gtest/gtest.h>

#include "tests/style/naming_fixture.h"
#include "tests/support/sample_styles.h"

namespace tarvo::test {
namespace {

TEST_F(StyleNamingTest, isOfferedForEveryStyleButTheStandardOne) {
  for (int index = 0; index < 4; ++index) {
    pane_.stylePopup.selectItemAtIndex(index);
    naming_.updateStyleNameButton();
    EXPECT_EQ(outlets_.StyleNameEditButton.isEnabled(), index != 0) << index;
  }
}

TEST_F(StyleNamingTest, opensWithThePresentName) {
  pane_.stylePopup.selectItemAtIndex(3);
  naming_.editStyleName();
  EXPECT_EQ(field(), "Beta");
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(windows_.hostOf(outlets_.styleNameWindow), &pane_.myWindow);
  EXPECT_TRUE(flags_.gMenuControllFlag);
  EXPECT_EQ(files_.writes(), 0);
}

TEST_F(StyleNamingTest, doesNotOpenWithoutARecordAndSaysSo) {
  pane_.stylePopup.selectItemAtIndex(-1);
  log_.clear();
  naming_.editStyleName();
  EXPECT_FALSE(isOpen());
  EXPECT_FALSE(flags_.gMenuControllFlag);
  EXPECT_EQ(log_, Log{});
  EXPECT_EQ(panels_.told, Log{"NoStyleToRename"});
}

TEST_F(StyleNamingTest, waitsForAnotherSheetAndShowsTheStyleThatIsChosenThen) {
  struct Others : Outlets {
    Others() : Outlets("other") {}
    Window sheet{*this, "sheet"};
  } others;
  windows_.orderFront(pane_.myWindow);
  windows_.beginSheet(others.sheet, pane_.myWindow, nullptr);
  pane_.stylePopup.selectItemAtIndex(1);
  naming_.editStyleName();
  EXPECT_FALSE(isOpen());
  EXPECT_FALSE(flags_.gMenuControllFlag) << "nothing is up that restricts the menus";
  pane_.stylePopup.selectItemAtIndex(3);
  windows_.endSheet(others.sheet, 0);
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(field(), "Beta");
  EXPECT_TRUE(flags_.gMenuControllFlag);
  naming_.snCancelButtonAction();
  EXPECT_FALSE(flags_.gMenuControllFlag);
}

TEST_F(StyleNamingTest, cancelledChangesNothing) {
  pane_.stylePopup.selectItemAtIndex(3);
  naming_.editStyleName();
  outlets_.styleNameField.userType("X");
  int code = -1;
  windows_.observer = [&code](Windows::Event event, Window&, int returnCode) {
    if (event == Windows::Event::sheetEnded) code = returnCode;
  };
  naming_.snCancelButtonAction();
  EXPECT_EQ(code, 0);
  EXPECT_FALSE(isOpen());
  EXPECT_FALSE(flags_.gMenuControllFlag);
  EXPECT_EQ(files_.writes(), 0);
  EXPECT_EQ(store_.root(), sampleRoot());
}

TEST_F(StyleNamingTest, writesRegistersRetitlesAndOnlyThenCloses) {
  engine_.online = true;
  store_.didWrite = [this] { log_.push_back("wrote, title " + pane_.stylePopup.items()[3].title); };
  windows_.observer = [this](Windows::Event event, Window&, int code) {
    if (event != Windows::Event::sheetEnded) return;
    log_.push_back("ended " + std::to_string(code) + ", title " + pane_.stylePopup.items()[3].title + ", flag " +
                   std::to_string(flags_.gMenuControllFlag));
  };
  rename(3, "Gamma");
  EXPECT_EQ(log_, (Log{"wrote, title Beta", "reachable", "register 4", "ended 1, title Gamma, flag 1"}));
  EXPECT_FALSE(flags_.gMenuControllFlag);
  EXPECT_EQ(*engine_.registered[3].dictionary()->string("Name"), "Gamma");
  EXPECT_EQ(*defaults_.string("LastUpdate"), "U1");
}

TEST_F(StyleNamingTest, changesOnlyTheName) {
  rename(3, "Gamma");
  Dictionary expected = sampleRoot();
  expected.array("Style")->at(3).dictionary()->set("Name", "Gamma");
  EXPECT_EQ(store_.root(), expected);
  EXPECT_EQ(pane_.stylePopup.items().size(), 4U);
  EXPECT_EQ(pane_.stylePopup.indexOfSelectedItem(), 3);
}

TEST_F(StyleNamingTest, writesAlsoTheNameThatWasThere) {
  rename(3, "Beta");
  EXPECT_EQ(log_, Log{"unreachable"});
  EXPECT_EQ(files_.writes(), 1);
}

TEST_F(StyleNamingTest, neverRenamesTheStandardStyleThatACallerHasBroughtMeanwhile) {
  for (const int index : {0, -1}) {
    pane_.stylePopup.selectItemAtIndex(3);
    naming_.editStyleName();
    outlets_.styleNameField.userType(" X ");
    pane_.stylePopup.selectItemAtIndex(index);
    log_.clear();
    int code = -1;
    windows_.observer = [&code](Windows::Event event, Window&, int returnCode) {
      if (event == Windows::Event::sheetEnded) code = returnCode;
    };
    naming_.snOKButtonAction();
    EXPECT_EQ(code, 0);
    EXPECT_EQ(field(), " X ");
    EXPECT_EQ(log_, Log{});
    EXPECT_EQ(files_.writes(), 0);
    EXPECT_FALSE(flags_.gMenuControllFlag);
  }
}

TEST_F(StyleNamingTest, renamesTheStyleThatIsChosenWhenOkIsPressed) {
  pane_.stylePopup.selectItemAtIndex(3);
  naming_.editStyleName();
  pane_.stylePopup.selectItemAtIndex(1);
  outlets_.styleNameField.userType("Gamma");
  naming_.snOKButtonAction();
  EXPECT_EQ(nameOf(1), "Gamma");
  EXPECT_EQ(nameOf(3), "Beta");
}

TEST_F(StyleNamingTest, keepsARenameThatCouldNotBeSaved) {
  files_.refuse(MemoryFiles::Operation::write);
  rename(3, "Gamma");
  EXPECT_EQ(nameOf(3), "Gamma");
  EXPECT_FALSE(isOpen());
  EXPECT_FALSE(store_.isSaved());
}

}  // namespace
}  // namespace tarvo::test
