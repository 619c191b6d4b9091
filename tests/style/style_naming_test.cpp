// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_naming.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"
#include "style/pane_alerts.h"
#include "style/process_flags.h"
#include "style/style_store.h"
#include "tests/style/exchange_world.h"
#include "tests/support/fake_shell.h"
#include "tests/support/memory_files.h"
#include "tests/support/sample_styles.h"

namespace tarvo::test {
namespace {

class StyleNamingTest : public testing::Test {
 protected:
  explicit StyleNamingTest(const Dictionary& root = sampleRoot()) {
    files_.put("/styles.plist", writePropertyList(root));
    EXPECT_TRUE(store_.readUserStyles());
    store_.setAwakening(false);
    std::vector<PopUpButton::Item> items;
    for (const PropertyList& style : *root.array("Style")) {
      const std::string* name = style.dictionary() != nullptr ? style.dictionary()->string("Name") : nullptr;
      items.push_back({name != nullptr ? *name : "", 0});
    }
    pane_.stylePopup.setItems(std::move(items));
  }
  // Opens the sheet for the style, types the name and presses OK.
  void rename(int index, const std::string& name) {
    pane_.stylePopup.selectItemAtIndex(index);
    naming_.editStyleName();
    log_.clear();
    outlets_.styleNameField.userType(name);
    naming_.snOKButtonAction();
  }
  const std::string& field() const { return outlets_.styleNameField.stringValue(); }
  bool isOpen() const { return outlets_.styleNameWindow.isShown(); }
  std::string nameOf(int index) const { return *store_.getStyleAtIndex(index)->string("Name"); }
  void expectRefusal(const std::string& alert) {
    EXPECT_EQ(log_, (Log{"beep", alert}));
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(flags_.gMenuControllFlag);
    EXPECT_EQ(files_.writes(), 0);
    EXPECT_EQ(store_.root(), sampleRoot());
  }
  const std::string taken_ = "alert CantStyleNameNomalHeader / CantStyleNameNomalMessage";

  Log log_;
  MemoryFiles files_;
  FakeEngine engine_{log_};
  FakePanels panels_{log_};
  FakeHost host_;
  FakeRunLoop runLoop_;
  Texts texts_;
  UserDefaults defaults_{files_, DiskPath("/defaults.plist")};
  StyleStore store_{files_, engine_, defaults_, DiskPath("/styles.plist"), DiskPath("/seed.plist")};
  PaneOutlets pane_;
  NamingOutlets outlets_;
  ProcessFlags flags_;
  PaneAlerts alerts_{panels_, texts_};
  Windows windows_{host_, runLoop_};
  StyleNaming naming_{{outlets_, pane_.stylePopup, pane_.myWindow, store_, flags_, alerts_, windows_}, "NomalStyle"};
};

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
  EXPECT_EQ(log_, Log{"tell NoStyleToRename"});
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

TEST_F(StyleNamingTest, refusesANameOfBlanksAndEmptiesTheField) {
  for (const char* blanks : {"", " ", " \t\r\n", "\u3000\u00A0\u2028"}) {
    rename(3, blanks);
    EXPECT_EQ(field(), "");
    expectRefusal("alert NoStyleNameHeader / NoStyleNameMessage");
    naming_.snCancelButtonAction();
  }
}

TEST_F(StyleNamingTest, refusesTakenNamesInAnyLetterCase) {
  for (const char* name : {"nomalSTYLE", "BETA", "  beta\n", "KEYNAMEseparator", "keyNameSeparator"}) {
    rename(1, name);
    expectRefusal(taken_);
    EXPECT_EQ(field(), std::string(name) == "  beta\n" ? "beta" : name);
    naming_.snCancelButtonAction();
  }
}

TEST_F(StyleNamingTest, acceptsWhatDiffersByMoreThanLetterCase) {
  const std::string longName = "a/b:c.d" + std::string(500, 'x');
  for (const std::string& name : {std::string("ALPHA"), std::string("Alpha"), std::string("Ｂｅｔａ"),
                                  std::string("Béta"), std::string("Beta\u200B"), longName}) {
    rename(1, name);
    EXPECT_EQ(nameOf(1), name);
    EXPECT_EQ(pane_.stylePopup.items()[1].title, name);
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(flags_.gMenuControllFlag);
  }
}

TEST_F(StyleNamingTest, keepsBlanksInsideTheName) {
  rename(1, " New  Name \n");
  EXPECT_EQ(nameOf(1), "New  Name");
  EXPECT_EQ(pane_.stylePopup.items()[1].title, "New  Name");
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

TEST_F(StyleNamingTest, comparesWithEveryStyleButTheGivenOne) {
  const Dictionary root = sampleRoot();
  const Array* styles = root.array("Style");
  EXPECT_TRUE(naming_.checkStyleName(styles, 1, "alpha"));
  EXPECT_FALSE(naming_.checkStyleName(styles, 0, "alpha"));
  EXPECT_FALSE(naming_.checkStyleName(styles, -1, "alpha"));
  EXPECT_FALSE(naming_.checkStyleName(styles, 0, "nomalstyle")) << "the standard name is no style's own";
  EXPECT_TRUE(naming_.checkStyleName(nullptr, 0, "x"));
  EXPECT_FALSE(naming_.checkStyleName(nullptr, 0, "NOMALSTYLE"));
}

TEST_F(StyleNamingTest, countsARecordWithoutANameAsNamedByNothing) {
  const Array styles{Dictionary(), "no record"};
  EXPECT_TRUE(naming_.checkStyleName(&styles, -1, "x"));
  EXPECT_FALSE(naming_.checkStyleName(&styles, -1, ""));
}

}  // namespace
}  // namespace tarvo::test
