// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/connection_check.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_reader.h"
#include "platform/services/notification_center.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"
#include "tests/support/fake_shell.h"
#include "tests/support/memory_files.h"

namespace tarvo::test {
namespace {

const std::string cannotConnect = "alert Cant connect internet Header / Cant connect internet Contents";

class ConnectionCheckTest : public testing::Test {
 protected:
  ConnectionCheckTest() {
    notifications_.onPost = [this](const Notification& posted) {
      log_.push_back("post " + posted.name + (posted.hasObject ? " with " + posted.object : ""));
    };
    windows_.observer = [this](Windows::Event event, Window& window, int code) {
      if (event == Windows::Event::sheet) log_.push_back("sheet " + window.name());
      if (event == Windows::Event::sheetEnded) log_.push_back("sheet ended " + std::to_string(code));
    };
  }
  Log launch(std::deque<bool> probes) {
    log_.clear();
    engine_.probes = std::move(probes);
    check_.checkConnection();
    return log_;
  }
  Log confirm(bool box) {
    log_.clear();
    outlets_.sslCheck.userCheck(box);
    check_.actionPanel();
    return log_;
  }
  const PropertyList* remembered() const { return defaults_.find("ConnectServer"); }
  std::optional<PropertyList> onDisk() const { return readPropertyList(files_.bytes("/defaults.plist")); }

  struct Main : Outlets {
    Window myWindow{*this, "myWindow"}, other{*this, "other"};
    Main() : Outlets("manager") {}
  };
  Log log_;
  MemoryFiles files_;
  FakeEngine engine_{log_};
  FakePanels panels_{log_};
  FakeHost host_;
  FakeRunLoop runLoop_;
  Texts texts_;
  UserDefaults defaults_{files_, DiskPath("/defaults.plist")};
  NotificationCenter notifications_;
  Windows windows_{host_, runLoop_};
  Main main_;
  ConnectionOutlets outlets_;
  ConnectionCheck check_{
      {outlets_, main_.myWindow, engine_, defaults_, notifications_, panels_, runLoop_, windows_, texts_}};
};

TEST_F(ConnectionCheckTest, asksTwiceAndThenForTheConsent) {
  EXPECT_EQ(launch({true, true}), (Log{"reachable", "reachable", "sheet manager.sslPanel"}));
  EXPECT_EQ(windows_.hostOf(outlets_.sslPanel), &main_.myWindow);
}

TEST_F(ConnectionCheckTest, saysNothingWhenTheSecondAnswerIsNo) {
  EXPECT_EQ(launch({true, false}), (Log{"reachable", "unreachable"}));
  defaults_.set("ConnectServer", true);
  EXPECT_EQ(launch({true, false}), (Log{"reachable", "unreachable"}));
  EXPECT_EQ(runLoop_.timers(), 0U);
}

TEST_F(ConnectionCheckTest, connectsSilentlyAfterAConsentForGood) {
  defaults_.set("ConnectServer", true);
  EXPECT_EQ(launch({true, true}), (Log{"reachable", "reachable", "post SendPlistNoti"}));
  defaults_.set("ConnectServer", false);
  EXPECT_EQ(launch({true, true}), (Log{"reachable", "reachable", "sheet manager.sslPanel"}));
}

TEST_F(ConnectionCheckTest, tellsAFailureOverTheWindowWhateverIsRemembered) {
  for (const bool connects : {false, true}) {
    defaults_.set("ConnectServer", connects);
    EXPECT_EQ(launch({false}), (Log{"unreachable", cannotConnect})) << "one probe, no beep";
    EXPECT_EQ(panels_.alerts.back().buttons, (std::vector<std::string>{"ContinueS", "CancelS"}));
    EXPECT_EQ(panels_.sheetHost, &main_.myWindow);
  }
}

TEST_F(ConnectionCheckTest, asksForTheConsentTwoSecondsAfterContinue) {
  defaults_.set("ConnectServer", true);
  launch({false});
  log_.clear();
  panels_.endAlertSheet(0);
  runLoop_.advance(1.999);
  EXPECT_EQ(log_, Log{});
  runLoop_.advance(0.001);
  EXPECT_EQ(log_, Log{"sheet manager.sslPanel"}) << "no further probe";
  runLoop_.advance(10);
  EXPECT_EQ(log_, Log{"sheet manager.sslPanel"}) << "once";
}

TEST_F(ConnectionCheckTest, doesNothingAfterCancel) {
  launch({false});
  log_.clear();
  panels_.endAlertSheet(1);
  EXPECT_EQ(runLoop_.timers(), 0U);
  runLoop_.advance(10);
  EXPECT_EQ(log_, Log{});
}

TEST_F(ConnectionCheckTest, storesClosesAndOnlyThenPosts) {
  for (const bool box : {false, true}) {
    launch({true, true});
    std::optional<PropertyList> storedAtEnd;
    bool shownAtPost = true;
    windows_.observer = [&](Windows::Event event, Window&, int code) {
      if (event != Windows::Event::sheetEnded) return;
      storedAtEnd = onDisk();
      log_.push_back("sheet ended " + std::to_string(code));
    };
    notifications_.onPost = [&](const Notification& posted) {
      shownAtPost = outlets_.sslPanel.isShown();
      log_.push_back("post " + posted.name + (posted.hasObject ? " with " + posted.object : ""));
    };
    EXPECT_EQ(confirm(box), (Log{"sheet ended 1000", "post SendPlistNoti"}));
    Dictionary expected;
    expected.set("ConnectServer", box);
    EXPECT_EQ(storedAtEnd, PropertyList(expected));
    EXPECT_FALSE(shownAtPost);
  }
}

TEST_F(ConnectionCheckTest, asksAgainAtTheNextLaunchAfterAConsentForOnce) {
  launch({true, true});
  confirm(false);
  EXPECT_EQ(launch({true, true}), (Log{"reachable", "reachable", "sheet manager.sslPanel"}));
  confirm(true);
  EXPECT_EQ(launch({true, true}), (Log{"reachable", "reachable", "post SendPlistNoti"}));
}

TEST_F(ConnectionCheckTest, waitsUntilAnotherSheetIsGone) {
  launch({false});
  panels_.endAlertSheet(0);
  windows_.beginSheet(main_.other, main_.myWindow, nullptr);
  log_.clear();
  runLoop_.advance(2);
  EXPECT_EQ(log_, Log{});
  windows_.endSheet(main_.other, 0);
  log_.clear();
  runLoop_.advance(2);
  EXPECT_EQ(log_, Log{"sheet manager.sslPanel"});
}

TEST_F(ConnectionCheckTest, beginsOnceTheSheetOfSomebodyElseIsGone) {
  windows_.beginSheet(main_.other, main_.myWindow, nullptr);
  EXPECT_EQ(launch({true, true}), Log{}) << "not even a probe";
  windows_.endSheet(main_.other, 0);
  log_.clear();
  runLoop_.advance(2);
  EXPECT_EQ(log_, (Log{"reachable", "reachable", "sheet manager.sslPanel"}));
}

TEST_F(ConnectionCheckTest, letsThoseGoFirstWhoWaitForTheWindow) {
  runLoop_.holds = true;
  launch({false});
  panels_.endAlertSheet(0);
  windows_.orderFront(main_.myWindow);
  windows_.beginSheet(main_.other, main_.myWindow, nullptr);
  windows_.covers().whenFree(main_.myWindow, [this] { windows_.beginSheet(main_.other, main_.myWindow, nullptr); });
  windows_.endSheet(main_.other, 0);
  runLoop_.advance(2);
  EXPECT_FALSE(outlets_.sslPanel.isShown());
  runLoop_.run();
  EXPECT_EQ(windows_.sheetOver(main_.myWindow), &main_.other);
  windows_.endSheet(main_.other, 0);
  runLoop_.advance(2);
  EXPECT_TRUE(outlets_.sslPanel.isShown());
}

TEST_F(ConnectionCheckTest, leavesNoTimerBehind) {
  {
    ConnectionCheck other(
        {outlets_, main_.myWindow, engine_, defaults_, notifications_, panels_, runLoop_, windows_, texts_});
    engine_.probes = {false};
    other.checkConnection();
    panels_.endAlertSheet(0);
    EXPECT_EQ(runLoop_.timers(), 1U);
  }
  EXPECT_EQ(runLoop_.timers(), 0U);
}

}  // namespace
}  // namespace tarvo::test
