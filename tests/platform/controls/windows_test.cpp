// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/controls/windows.h"

#include <gtest/gtest.h>

#include "tests/support/fake_shell.h"

namespace tarvo::test {
namespace {

struct SomeWindows : Outlets {
  SomeWindows() : Outlets("some") {
    for (auto [button, window] : {std::pair{&inMain, &main}, {&inSheet, &sheet}, {&inPanel, &panel}}) {
      button->setWindow(window);
    }
  }
  Window main{*this, "main"}, sheet{*this, "sheet"}, panel{*this, "panel"};
  Button inMain{*this, "inMain"}, inSheet{*this, "inSheet"}, inPanel{*this, "inPanel"};
  MenuItem menu{*this, "menu"};
};

class WindowsTest : public testing::Test {
 protected:
  WindowsTest() {
    windows_.observer = [this](Windows::Event event, Window& window, int code) {
      const char* names[] = {"shown", "hidden", "sheet", "sheetEnded", "modal", "modalEnded", "framed"};
      log_.push_back(names[static_cast<int>(event)] + (" " + window.name()) + " " + std::to_string(code));
    };
    windows_.orderFront(some_.main);
    log_.clear();
  }
  SomeWindows some_;
  FakeHost host_;
  FakeRunLoop runLoop_;
  Windows windows_{host_, runLoop_};
  Log log_;
};

TEST_F(WindowsTest, reachWhatIsEnabledShownAndInAShownWindow) {
  EXPECT_TRUE(windows_.isReachable(some_.inMain));
  EXPECT_FALSE(windows_.isReachable(some_.inPanel));
  some_.inMain.setEnabled(false);
  EXPECT_FALSE(windows_.isReachable(some_.inMain));
  some_.inMain.setEnabled(true);
  some_.inMain.setHidden(true);
  EXPECT_FALSE(windows_.isReachable(some_.inMain));
}

TEST_F(WindowsTest, reachWhatIsNotLaidOutInAShownWindow) {
  for (Control* control : {&some_.inMain, &some_.inPanel}) {
    control->setLaidOut(false);
    control->setHidden(true);
  }
  EXPECT_TRUE(windows_.isReachable(some_.inMain));
  EXPECT_FALSE(windows_.isReachable(some_.inPanel));
  some_.inMain.setEnabled(false);
  EXPECT_FALSE(windows_.isReachable(some_.inMain));
}

TEST_F(WindowsTest, coverTheirHostWithASheetUntilItEnds) {
  int ended = -1;
  windows_.beginSheet(some_.sheet, some_.main, [&](int code) {
    ended = code;
    log_.emplace_back("handler");
  });
  EXPECT_FALSE(windows_.isReachable(some_.inMain));
  EXPECT_TRUE(windows_.isReachable(some_.inSheet));
  EXPECT_EQ(windows_.hostOf(some_.sheet), &some_.main);
  windows_.beginSheet(some_.panel, some_.main, {});
  EXPECT_EQ(windows_.sheetOver(some_.main), &some_.sheet);
  windows_.endSheet(some_.sheet, 7);
  EXPECT_EQ(ended, 7);
  EXPECT_TRUE(windows_.isReachable(some_.inMain));
  EXPECT_EQ(log_, (Log{"sheet some.sheet 0", "sheetEnded some.sheet 7", "handler"}));
  windows_.endSheet(some_.sheet, 8);
  EXPECT_EQ(ended, 7);
}

TEST_F(WindowsTest, shutOutTheRestDuringAModalRun) {
  host_.whileModal = [&](Window&) {
    EXPECT_FALSE(windows_.isReachable(some_.inMain));
    EXPECT_FALSE(windows_.isReachable(some_.menu));
    EXPECT_TRUE(windows_.isReachable(some_.inPanel));
    windows_.beginSheet(some_.sheet, some_.panel, {});
    EXPECT_TRUE(windows_.isReachable(some_.inSheet));
    EXPECT_FALSE(windows_.isReachable(some_.inPanel));
    windows_.endSheet(some_.sheet, 0);
    windows_.stopModal(5);
  };
  EXPECT_EQ(windows_.runModalForWindow(some_.panel), 5);
  EXPECT_EQ(host_.stops, 1);
  EXPECT_TRUE(windows_.isReachable(some_.inMain));
  EXPECT_TRUE(some_.panel.isShown());
  windows_.orderOut(some_.panel);
  EXPECT_FALSE(some_.panel.isShown());
  EXPECT_EQ(log_.back(), "hidden some.panel 0");
}

TEST_F(WindowsTest, endTheInnermostOfNestedModalRuns) {
  host_.whileModal = [&](Window& window) {
    if (&window == &some_.panel) {
      EXPECT_EQ(windows_.runModalForWindow(some_.sheet), 2);
      windows_.stopModal(1);
    } else {
      windows_.stopModal(2);
    }
  };
  EXPECT_EQ(windows_.runModalForWindow(some_.panel), 1);
  windows_.stopModal(9);
  EXPECT_EQ(host_.stops, 2);
}

TEST_F(WindowsTest, reportAMoveWheneverTheOriginChangesAndOnlyThen) {
  int moves = 0;
  some_.main.didMove = [&] { ++moves; };
  some_.main.setFrame({0, 10, 100, 100});
  some_.main.setFrame({0, 10, 200, 300});
  EXPECT_EQ(moves, 1);
  some_.main.userMove(5, 10);
  some_.main.userMove(5, 10);
  EXPECT_EQ(moves, 2);
  some_.main.setFrameInPlace({5, 66, 200, 244});
  EXPECT_EQ(moves, 2);
  EXPECT_EQ(some_.main.frame(), (Rect{5, 66, 200, 244}));
}

TEST_F(WindowsTest, tellAFrameSetOnScreenAfterItHolds) {
  windows_.setFrame(some_.main, {1, 2, 3, 4});
  EXPECT_EQ(some_.main.frame(), (Rect{1, 2, 3, 4}));
  EXPECT_EQ(log_, Log{"framed some.main 0"});
}

}  // namespace
}  // namespace tarvo::test
