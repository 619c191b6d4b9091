// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/request_queue.h"
#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

namespace tarvo::test {
namespace {

std::string littleEndian(std::string_view ascii) {
  std::string bytes;
  for (const char c : ascii) bytes += {c, '\0'};
  return bytes;
}

class RequestsTest : public testing::Test {
 protected:
  RequestsTest() {
    test_.root.write("System/Library/CoreServices/SystemVersion.plist",
                     "<plist><dict><key>ProductVersion</key><string>10.6.8</string></dict></plist>");
    test_.writeStyles(sampleRoot());
    test_.runLoop.holds = true;
    test_.engine.probes = {true, false};  // the launch shows nothing
  }
  void start() {
    ASSERT_TRUE(test_.program().start());
    test_.program().notifications().onPost = [this](const Notification& posted) {
      test_.log.push_back("post " + posted.name + " " + posted.object);
    };
    test_.program().rooms().store.didWrite = [this] { test_.log.emplace_back("wrote"); };
    test_.log.clear();
  }
  RequestQueue& requests() { return test_.program().requests(); }
  void send(const std::string& code) { requests().event(littleEndian(code)); }
  std::string currentTool() { return test_.program().rooms().store.currentID(); }
  int pane() { return test_.interface().manager.myTabView.selectedPage(); }

  TestProgram test_;
};

TEST_F(RequestsTest, chooseTheToolFirstAndBringThePaneForwardThen) {
  start();
  test_.engine.online = true;
  test_.program().manager().changeOfficeToolbar();
  test_.log.clear();
  send("tQB8");
  EXPECT_EQ(test_.log, Log{}) << "answered when queued";
  test_.runLoop.run();
  EXPECT_EQ(test_.log, (Log{"wrote", "reachable", "register 4", "post ChangeToolbar style"}));
  EXPECT_EQ(currentTool(), "QB");
  EXPECT_EQ(pane(), 0);
  EXPECT_EQ(*test_.defaultsOnDisk().string("SMSelectedTag"), "QB");
}

TEST_F(RequestsTest, runTheWholeSequenceAgainForTheToolThatIsChosen) {
  start();
  for (int time = 0; time < 2; ++time) send("tQB8");
  test_.runLoop.run();
  const Log once{"wrote", "unreachable", "post ChangeToolbar style"};
  Log twice = once;
  twice.insert(twice.end(), once.begin(), once.end());
  EXPECT_EQ(test_.log, twice);
}

TEST_F(RequestsTest, forTheOfficePaneLeaveTheToolAlone) {
  start();
  send("tQB8");
  test_.runLoop.run();
  const Dictionary before = test_.stylesOnDisk();
  test_.log.clear();
  send("offi");
  test_.runLoop.run();
  EXPECT_EQ(test_.log, Log{"post ChangeOfficeToolbar style"});
  EXPECT_EQ(pane(), 1);
  EXPECT_EQ(currentTool(), "QB");
  EXPECT_EQ(test_.stylesOnDisk(), before);
}

TEST_F(RequestsTest, withoutARememberedChoiceWriteNoStyles) {
  Dictionary root = sampleRoot();
  root.remove("Selection");
  test_.writeStyles(root);
  start();
  send("tQB8");
  test_.runLoop.run();
  EXPECT_EQ(test_.log, Log{"post ChangeToolbar style"});
  EXPECT_EQ(currentTool(), "QB");
}

TEST_F(RequestsTest, thatNobodyCanReadAreIgnored) {
  start();
  requests().event(std::nullopt);
  requests().event("t");
  requests().event(std::string("\x00\xD8", 2));
  test_.runLoop.run();
  EXPECT_EQ(test_.log, Log{});
}

TEST_F(RequestsTest, asTextAreTakenAsTheyStand) {
  start();
  requests().eventText("tQB8");
  test_.runLoop.run();
  EXPECT_EQ(currentTool(), "QB");
  requests().eventText(littleEndian("tTX8"));
  test_.runLoop.run();
  EXPECT_EQ(currentTool(), "MG") << "no rule of bytes applies to a text";
}

TEST_F(RequestsTest, beforeTheEndOfTheLaunchWaitForIt) {
  ASSERT_TRUE(test_.program().construct());
  requests().eventText("tQB8");
  test_.runLoop.run();
  EXPECT_EQ(test_.runLoop.posted(), 0U);
  ASSERT_TRUE(test_.program().load());
  test_.runLoop.run();
  EXPECT_EQ(currentTool(), "MG");
  test_.program().launch();
  test_.runLoop.run();
  EXPECT_EQ(currentTool(), "QB");
}

TEST_F(RequestsTest, comeInTheirOrderAndNoneIsLost) {
  start();
  const std::vector<std::pair<const char*, const char*>> tools{{"tMG8", "MG"},  {"tQB8", "QB"},  {"tTX8", "TX"},
                                                               {"tGD8", "GD"},  {"tTM8", "TMA"}, {"tNP8", "NP"},
                                                               {"MSWD", "ADD"}, {"Mail", "MAIL"}};
  std::vector<std::string> expected, seen;
  test_.program().notifications().onPost = [&](const Notification&) { seen.push_back(currentTool()); };
  for (std::size_t i = 0; i < 1000; ++i) {
    const auto& [code, tool] = tools[(i * 7 + i / 13) % tools.size()];
    requests().eventText(code);
    expected.emplace_back(tool);
    if (i % 3 == 0) test_.runLoop.run();
  }
  test_.runLoop.run();
  EXPECT_EQ(seen, expected);
}

TEST_F(RequestsTest, keepTheirPlacesUntilTheyAreHandled) {
  start();
  RequestPlaces places = requests().places();
  std::vector<RequestPlace> others;
  for (int i = 1; i < RequestPlaces::most; ++i) others.push_back(places.take());
  RequestPlace last = places.take();
  EXPECT_EQ(places.take(), nullptr);
  requests().activate(last);
  requests().eventText("tQB8", std::move(last));
  EXPECT_EQ(places.take(), nullptr) << "both parts of one call have one place";
  RequestPlace whileHandled;
  test_.program().notifications().onPost = [&](const Notification&) { whileHandled = places.take(); };
  test_.runLoop.run();
  EXPECT_NE(whileHandled, nullptr) << "what is being handled waits no longer";
  requests().close();
  requests().eventText("tQB8", std::move(whileHandled));
  EXPECT_NE(places.take(), nullptr) << "what comes too late takes none";
}

TEST_F(RequestsTest, areServedWhileAModalWindowIsUp) {
  start();
  std::string toolWhileUp;
  test_.host.whileModal = [&](Window&) {
    send("tQB8");
    test_.runLoop.run();
    toolWhileUp = currentTool();
  };
  test_.interface().lists.ejLoadDicButton.userPress();
  EXPECT_EQ(toolWhileUp, "QB");
}

TEST_F(RequestsTest, oneThatAsksTheUserEndsBeforeTheNextBegins) {
  start();
  requests().openStyleFile(DiskPath("/missing.whstyle"));
  requests().eventText("tQB8");
  std::string toolWhileUp;
  test_.panels.whileUp = [&] {
    test_.runLoop.run();
    toolWhileUp = currentTool();
  };
  test_.runLoop.run();
  EXPECT_EQ(toolWhileUp, "MG");
  EXPECT_EQ(currentTool(), "QB");
}

TEST_F(RequestsTest, thatComeWhileOneAsksTheUserWaitForItsEnd) {
  start();
  requests().openStyleFile(DiskPath("/missing.whstyle"));
  std::string toolWhileUp;
  test_.panels.whileUp = [&] {
    test_.panels.whileUp = nullptr;
    requests().eventText("tQB8");
    test_.runLoop.run();
    toolWhileUp = currentTool();
  };
  test_.runLoop.run();
  EXPECT_EQ(toolWhileUp, "MG");
  EXPECT_EQ(currentTool(), "QB");
}

TEST_F(RequestsTest, bringTheWindowForwardInTheirTurn) {
  start();
  std::vector<std::string> tools;
  requests().bringForward = [&] { tools.push_back(currentTool()); };
  requests().eventText("tQB8");
  requests().activate();
  requests().eventText("tMG8");
  test_.runLoop.run();
  EXPECT_EQ(tools, std::vector<std::string>{"QB"});
  requests().bringForward = nullptr;
  requests().activate();
  test_.runLoop.run();
}

TEST_F(RequestsTest, endWithTheProgram) {
  start();
  send("tQB8");
  test_.program().quit();
  test_.log.clear();
  send("tTX8");
  test_.runLoop.run();
  EXPECT_EQ(test_.log, Log{});
  test_.drop();
  test_.runLoop.run();
  EXPECT_EQ(*test_.defaultsOnDisk().string("SMSelectedTag"), "MG");
}

TEST_F(RequestsTest, thatWaitWhenTheProgramIsDroppedAreDropped) {
  start();
  send("tQB8");
  test_.drop();
  test_.runLoop.run();
  EXPECT_EQ(*test_.defaultsOnDisk().string("SMSelectedTag"), "MG");
}

TEST_F(RequestsTest, aPaneThatIsGoneHearsNothing) {
  start();
  NotificationCenter notifications;
  std::optional<AppController> other;
  other.emplace(test_.interface(), test_.program().rooms(), test_.program().services(), test_.program().defaults(),
                notifications, [] {});
  other->init();
  other.reset();
  notifications.post("newDicNotification", "N.eud2");
  notifications.post("SendPlistNoti");
  EXPECT_EQ(test_.log, Log{});
}

}  // namespace
}  // namespace tarvo::test
