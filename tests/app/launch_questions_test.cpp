// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "tests/app/style_travel_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(StyleTravel, theConsentWaitsUntilTheSavePanelIsGone) {
  start({false});
  test_.panels.endAlertSheet(0);
  choose(3);
  interface().exchange.exportMenu.userChoose();
  test_.runLoop.advance(2);
  EXPECT_FALSE(interface().connection.sslPanel.isShown());
  test_.panels.endSavePanel(0, "");
  test_.runLoop.advance(2);
  EXPECT_TRUE(interface().connection.sslPanel.isShown());
}

TEST(Launch, asksNothingBeforeTheScreenCautionIsClosed) {
  TestProgram test;
  test.root.write("System/Library/CoreServices/SystemVersion.plist",
                  "<plist><dict><key>ProductVersion</key><string>10.6.8</string></dict></plist>");
  Dictionary defaults;
  defaults.set("NoDialogState", 0);
  test.root.write(test.inHome("Library/Preferences/com.wordhaven.TarvoManager.plist"), writePropertyList(defaults));
  test.writeStyles(sampleRoot());
  test.host.screen = {0, 0, 800, 600};
  bool wasUp = false;
  test.host.whileModal = [&](Window& window) {
    wasUp = &window == &test.interface().manager.displayAlertWindow;
    EXPECT_EQ(test.log, Log{});
  };
  ASSERT_TRUE(test.program().start());
  EXPECT_TRUE(wasUp);
  EXPECT_EQ(test.log.front(), "unreachable");
}

TEST(Launch, asksOnceHoweverTheWindowIsUsed) {
  TestProgram test;
  test.writeStyles(sampleRoot());
  test.engine.online = true;
  ASSERT_TRUE(test.program().start());
  EXPECT_EQ(test.log, (Log{"reachable", "reachable"}));
  test.interface().connection.sslOKButton.userPress();
  test.log.clear();
  test.program().manager().changeOfficeToolbar();
  test.program().windows().orderOut(test.interface().manager.myWindow);
  test.program().windows().orderFront(test.interface().manager.myWindow);
  test.program().requests().eventText("offi");
  EXPECT_EQ(test.log, Log{});
}

}  // namespace
}  // namespace tarvo::test
