// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/app/style_travel_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(StyleTravel, needsTheStylePane) {
  start();
  ExportOutlets& menus = interface().exchange;
  test_.program().manager().changeOfficeToolbar();
  EXPECT_FALSE(menus.importMenu.userChoose());
  EXPECT_FALSE(menus.exportMenu.userChoose());
  EXPECT_TRUE(menus.exportWindowMenu.isValid());
  test_.program().styles().handleCallerCode("tMG8");
  EXPECT_TRUE(menus.importMenu.isValid());
}

TEST_F(StyleTravel, leavesOnlyHelpInTheMenusWhileANameIsAsked) {
  start();
  choose(3);
  interface().naming.StyleNameEditButton.userPress();
  HelpOutlets& help = interface().help;
  EXPECT_TRUE(help.helpMenu.isValid() && help.homepageMenu.isValid() && help.supportMenu.isValid());
  EXPECT_FALSE(help.oldTechMenu.isValid());
  EXPECT_FALSE(interface().exchange.importMenu.isValid());
  EXPECT_FALSE(interface().exchange.exportWindowMenu.isValid());
  interface().naming.styleNameWindow.userClose();
  EXPECT_TRUE(help.oldTechMenu.isValid());
}

TEST_F(StyleTravel, theExportPanelLeavesTheMenusAsTheyAre) {
  start();
  choose(3);
  interface().exchange.exportMenu.userChoose();
  EXPECT_FALSE(test_.program().rooms().flags.gMenuControllFlag);
  EXPECT_TRUE(interface().style.quitMenu.isValid());
  test_.panels.endSavePanel(1, test_.root / "out.whstyle");
  EXPECT_TRUE(test_.root.exists("out.whstyle"));
}

}  // namespace
}  // namespace tarvo::test
