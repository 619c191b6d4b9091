// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/quit_question.h"

#include "style/own_files.h"

#include <gtest/gtest.h>

#include "platform/controls/covers.h"
#include "platform/controls/windows.h"
#include "platform/engine/engine_none.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/failure_text.h"
#include "platform/services/locations.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"
#include "style/style_keys.h"
#include "style/style_store.h"
#include "tests/support/fake_shell.h"
#include "tests/support/memory_files.h"
#include "tests/support/sample_styles.h"

namespace tarvo::test {
namespace {

constexpr const char *styles = "/home/styles.plist", *elsewhere = "/disk/all.plist";
enum Answer { quit, again, saveAs };

class QuitQuestionTest : public testing::Test {
 protected:
  QuitQuestionTest() {
    files.put(styles, writePropertyList(sampleRoot()));
    EXPECT_TRUE(store.readUserStyles());
    store.setSelection(1);
    files.put("/disk/other", "");
    windows.orderFront(host.window);
    before = files.bytes(styles);
  }
  void failToSave() {
    files.refuse(MemoryFiles::Operation::write, styles, std::errc::no_space_on_device);
    Dictionary record = *store.getStyleAtIndex(1);
    record.set(keyNameName, "Renamed");
    store.setStyle(1, record);
    ASSERT_FALSE(store.isSaved());
  }
  void ask() {
    question.ask([this] { ++quits; });
  }
  void askAndAnswer(int button) {
    ask();
    panels.endAlertSheet(button);
  }

  struct HostOutlets : Outlets {
    HostOutlets() : Outlets("manager") {}
    Window window{*this, "myWindow"};
  } host;
  Log log;
  FakePanels panels{log};
  FakeRunLoop runLoop;
  FakeHost windowHost;
  Windows windows{windowHost, runLoop};
  Covers& covers = windows.covers();
  MemoryFiles files;
  EngineNone engine;
  Locations locations{"/", "/home"};
  UserDefaults defaults{files, DiskPath("/home/defaults.plist")};
  StyleStore store{files, engine, defaults, DiskPath(styles), DiskPath("/seed.plist")};
  Texts texts;
  OwnFiles ownFiles{files, {DiskPath(styles)}, DiskPath("/home/Earlier")};
  QuitQuestion question{{store, panels, texts, locations, covers, host.window, ownFiles}};
  std::string before;
  int quits = 0;
};

TEST_F(QuitQuestionTest, whoseStylesAreStoredQuitsAtOnceAndWritesNothing) {
  const int writes = files.writes();
  ask();
  EXPECT_EQ(quits, 1);
  EXPECT_EQ(log, Log{});
  EXPECT_EQ(files.writes(), writes);
}

TEST_F(QuitQuestionTest, asksOverTheWindowWithTheCause) {
  failToSave();
  ask();
  EXPECT_EQ(quits, 0);
  ASSERT_EQ(panels.alerts.size(), 1U);
  EXPECT_EQ(panels.sheetHost, &host.window);
  EXPECT_EQ(panels.alerts.front().buttons,
            (std::vector<std::string>{"QuitUnsavedQuit", "QuitUnsavedAgain", "QuitUnsavedSaveAs"}));
}

TEST_F(QuitQuestionTest, quitsAllTheSame) {
  failToSave();
  askAndAnswer(quit);
  EXPECT_EQ(quits, 1);
  EXPECT_EQ(files.bytes(styles), before);
}

TEST_F(QuitQuestionTest, quitsOnceTheWriteSucceeds) {
  failToSave();
  files.allowAll();
  askAndAnswer(again);
  EXPECT_EQ(quits, 1);
  EXPECT_NE(files.bytes(styles).find("Renamed"), std::string::npos);
}

TEST_F(QuitQuestionTest, staysWhereTheWriteFailsAgainAndTellsWhy) {
  failToSave();
  askAndAnswer(again);
  EXPECT_EQ(quits, 0);
  ASSERT_EQ(panels.alerts.size(), 2U);
  EXPECT_EQ(panels.alerts.back().title, "QuitStillUnsavedHeader");
  EXPECT_EQ(panels.alerts.back().message, failureText(*store.unsaved(), texts));
  panels.endAlertSheet(0);
  EXPECT_EQ(quits, 0);
  askAndAnswer(quit);
  EXPECT_EQ(quits, 1) << "the next quit asks anew";
}

TEST_F(QuitQuestionTest, savesAllStylesWithTheChoicesElsewhereAndQuits) {
  failToSave();
  askAndAnswer(saveAs);
  EXPECT_EQ(quits, 0);
  ASSERT_EQ(panels.saves.size(), 1U);
  EXPECT_EQ(panels.saves.front().requiredType, "plist");
  panels.endSavePanel(1, elsewhere);
  EXPECT_EQ(quits, 1);
  EXPECT_EQ(files.bytes(elsewhere), writePropertyList(store.root()));
}

TEST_F(QuitQuestionTest, staysWhereThePanelIsCancelledOrTheOtherPlaceFailsToo) {
  failToSave();
  askAndAnswer(saveAs);
  panels.endSavePanel(0, "");
  EXPECT_EQ(quits, 0);
  files.refuse(MemoryFiles::Operation::write, elsewhere);
  askAndAnswer(saveAs);
  panels.endSavePanel(1, elsewhere);
  EXPECT_EQ(quits, 0);
  EXPECT_EQ(panels.alerts.back().title, "QuitStillUnsavedHeader");
}

TEST_F(QuitQuestionTest, theStyleFileItselfIsNoOtherPlace) {
  failToSave();
  files.allowAll();
  askAndAnswer(saveAs);
  panels.endSavePanel(1, styles);
  EXPECT_EQ(quits, 0);
  EXPECT_EQ(files.bytes(styles), before);
  EXPECT_EQ(panels.alerts.back().title, "QuitStillUnsavedHeader");
}

TEST_F(QuitQuestionTest, isAskedOnceHoweverOftenQuitIsChosen) {
  failToSave();
  ask();
  ask();
  EXPECT_EQ(panels.alerts.size(), 1U);
  panels.endAlertSheet(saveAs);
  ask();
  EXPECT_EQ(panels.alerts.size(), 1U);
  EXPECT_EQ(panels.saves.size(), 1U);
}

TEST_F(QuitQuestionTest, waitsForTheSheetThatIsUp) {
  failToSave();
  covers.beginSheet(host.window, nullptr);
  ask();
  EXPECT_EQ(panels.alerts.size(), 0U);
  covers.endSheet(host.window, nullptr, [] {});
  EXPECT_EQ(panels.alerts.size(), 1U);
}

}  // namespace
}  // namespace tarvo::test
