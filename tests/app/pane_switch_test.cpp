// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

// When the toolbar's item is marked: before the pane is shown or after it.
namespace tarvo::test {
namespace {

class MarkedItem : public testing::Test {
 protected:
  MarkedItem() {
    test_.writeStyles(sampleRoot());
    test_.program().construct();
    ManagerOutlets& outlets = test_.interface().manager;
    outlets.toolbar.view = [this, &outlets](Control::Change change) {
      if (change == Control::Change::value) test_.log.push_back("marked " + outlets.toolbar.selectedItemIdentifier());
    };
    outlets.myWindow.view = [this, &outlets](Control::Change change) {
      if (change == Control::Change::look) test_.log.push_back("shown " + outlets.myWindow.title());
    };
  }
  TestProgram test_;
};

TEST_F(MarkedItem, comesBeforeThePaneAtTheStartAndWhenItIsPressed) {
  ASSERT_TRUE(test_.program().load());
  EXPECT_EQ(test_.log, (Log{"marked StyleManager", "shown TransStyleTab"}));
  test_.log.clear();
  test_.interface().manager.OA.userPress();
  EXPECT_EQ(test_.log, (Log{"marked OA", "shown OfficeAddinTab"}));
}

TEST_F(MarkedItem, comesAfterThePaneOfAMenuCommandOrANotification) {
  ASSERT_TRUE(test_.program().load());
  test_.log.clear();
  test_.interface().manager.mailMenu.userChoose();
  test_.program().notifications().post("ChangeOfficeToolbar");
  EXPECT_EQ(test_.log, (Log{"shown MailTranslationTab", "marked MT", "shown OfficeAddinTab", "marked OA"}));
}

TEST_F(MarkedItem, staysWhereNoPaneHasTheTag) {
  ASSERT_TRUE(test_.program().load());
  test_.log.clear();
  for (const int tag : {-1, 3, 100}) test_.program().manager().selectToolbarActionforMenu(tag);
  EXPECT_TRUE(test_.log.empty());
}

}  // namespace
}  // namespace tarvo::test
