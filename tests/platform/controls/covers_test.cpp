// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/controls/covers.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/support/fake_shell.h"

namespace tarvo::test {
namespace {

struct SomeWindows : Outlets {
  SomeWindows() : Outlets("some") { tabs.setPages({{"one", ""}, {"two", ""}}); }
  Window main{*this, "main"}, other{*this, "other"}, sheet{*this, "sheet"};
  TabView tabs{*this, "tabs"};
};

class CoversTest : public testing::Test {
 protected:
  CoversTest() {
    some_.main.setPages(some_.tabs);
    windows_.orderFront(some_.main);
    windows_.orderFront(some_.other);
  }
  // An operation that leaves its name in the log and hangs a panel over the window.
  void ask(Window& host, const std::string& name) {
    covers_.whenFree(host, [this, &host, name] {
      log_.push_back(name);
      covers_.beginSheet(host, nullptr);
    });
  }
  void end(Window& host) {
    covers_.endSheet(host, nullptr, [this] { log_.emplace_back("ended"); });
  }
  SomeWindows some_;
  FakeHost host_;
  FakeRunLoop runLoop_;
  Windows windows_{host_, runLoop_};
  Covers& covers_ = windows_.covers();
  Log log_;
};

TEST_F(CoversTest, serveWhoComesFirstOneSheetAtATime) {
  for (const char* name : {"first", "second", "third"}) ask(some_.main, name);
  EXPECT_EQ(log_, Log{"first"});
  EXPECT_EQ(covers_.waiting(), 2U);
  end(some_.main);
  EXPECT_EQ(log_, (Log{"first", "ended", "second"}));
  end(some_.main);
  EXPECT_EQ(log_.back(), "third");
  end(some_.main);
  EXPECT_FALSE(covers_.isAnythingUp());
  EXPECT_EQ(covers_.waiting(), 0U);
}

TEST_F(CoversTest, holdUpNobodyOverAnotherWindow) {
  ask(some_.main, "main");
  ask(some_.other, "other");
  ask(some_.main, "main again");
  EXPECT_EQ(log_, (Log{"main", "other"}));
  end(some_.other);
  EXPECT_EQ(log_, (Log{"main", "other", "ended"})) << "its own host has a sheet still";
}

TEST_F(CoversTest, letTheActionThatEndedASheetComeToItsEnd) {
  runLoop_.holds = true;
  ask(some_.main, "first");
  ask(some_.main, "second");
  end(some_.main);
  log_.emplace_back("end of the action");
  ask(some_.main, "third");
  EXPECT_FALSE(covers_.isFree(some_.main)) << "somebody waits";
  runLoop_.run();
  EXPECT_EQ(log_, (Log{"first", "ended", "end of the action", "second"}));
}

TEST_F(CoversTest, goOnWithTheNextWhenAnOperationOpensNothing) {
  ask(some_.main, "first");
  for (const char* name : {"nothing", "nothing again"}) {
    covers_.whenFree(some_.main, [this, name] { log_.emplace_back(name); });
  }
  ask(some_.main, "last");
  end(some_.main);
  EXPECT_EQ(log_, (Log{"first", "ended", "nothing", "nothing again", "last"}));
}

TEST_F(CoversTest, doNotBeginAnOperationInsideAnother) {
  runLoop_.holds = true;
  ask(some_.main, "first");
  ask(some_.other, "other");
  covers_.whenFree(some_.main, [this] {
    log_.emplace_back("asks");
    end(some_.other);  // while the user is asked, say
    runLoop_.run();
    log_.emplace_back("answered");
  });
  ask(some_.other, "next");
  end(some_.main);
  runLoop_.run();
  EXPECT_EQ(log_, (Log{"first", "other", "ended", "asks", "ended", "answered", "next"}));
}

TEST_F(CoversTest, dropWhatHasLostItsPage) {
  ask(some_.main, "first");
  ask(some_.main, "of page one");
  some_.tabs.selectPage(1);
  ask(some_.main, "of page two");
  end(some_.main);
  EXPECT_EQ(log_, (Log{"first", "ended", "of page two"}));
}

TEST_F(CoversTest, keepWhatHasItsPageAgain) {
  ask(some_.main, "first");
  ask(some_.main, "of page one");
  some_.tabs.selectPage(1);
  some_.tabs.selectPage(0);
  end(some_.main);
  EXPECT_EQ(log_.back(), "of page one");
}

TEST_F(CoversTest, dropWhatHasLostItsWindow) {
  ask(some_.other, "first");
  ask(some_.other, "second");
  windows_.orderOut(some_.other);
  end(some_.other);
  EXPECT_EQ(log_, (Log{"first", "ended"}));
  EXPECT_EQ(covers_.waiting(), 0U);
}

TEST_F(CoversTest, dropEverythingOnceTheProgramEnds) {
  ask(some_.main, "first");
  ask(some_.main, "second");
  covers_.close();
  end(some_.main);
  ask(some_.main, "third");
  EXPECT_EQ(log_, (Log{"first", "ended"}));
}

TEST_F(CoversTest, letAModalRunHoldNobodyUp) {
  host_.whileModal = [this](Window& window) {
    EXPECT_EQ(covers_.modalWindow(), &window);
    const Covers::ModalRun alert(covers_, nullptr);
    EXPECT_EQ(covers_.modalWindow(), &window) << "an alert is no window of the program";
    EXPECT_TRUE(covers_.isAnythingUp());
    ask(some_.main, "while it runs");
  };
  windows_.runModalForWindow(some_.other);
  EXPECT_EQ(log_, Log{"while it runs"});
  EXPECT_EQ(covers_.modalWindow(), nullptr);
}

TEST_F(CoversTest, knowPanelsAndWindowsAlike) {
  ask(some_.main, "panel");
  EXPECT_FALSE(windows_.beginSheet(some_.sheet, some_.main, {})) << "a window has one sheet";
  EXPECT_FALSE(some_.sheet.isShown());
  EXPECT_EQ(windows_.sheetOver(some_.main), nullptr);
  end(some_.main);
  EXPECT_TRUE(windows_.beginSheet(some_.sheet, some_.main, {}));
  ask(some_.main, "second");
  end(some_.main);
  EXPECT_EQ(log_, (Log{"panel", "ended"})) << "no panel is up that could end";
  windows_.endSheet(some_.sheet, 0);
  EXPECT_EQ(log_.back(), "second");
}

TEST(CoversOfAProgramThatIsGone, AreLeftAloneByTheLoop) {
  FakeRunLoop runLoop;
  runLoop.holds = true;
  SomeWindows some;
  auto covers = std::make_optional<Covers>(runLoop);
  covers->beginSheet(some.main, nullptr);
  covers->whenFree(some.main, [] { FAIL(); });
  covers->endSheet(some.main, nullptr, [] {});
  covers.reset();
  runLoop.run();
}

}  // namespace
}  // namespace tarvo::test
