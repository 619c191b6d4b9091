// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QTest>
#include <QToolBar>

#include "qt/window/sheet.h"
#include "tests/qt/main_window_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(MainWindowTest, aHiddenToolbarTakesItsHeightFromTheWindow) {
  start();
  settleFrame();
  const QPoint before = corner();
  const int height = window().height(), bar = window().toolbarHeight();
  ASSERT_TRUE(interface().manager.toolbarMenu.isValid());
  widget<QAction>("manager.toolbarMenu").trigger();
  settle();
  EXPECT_FALSE(widget<QToolBar>("manager.toolbar").isVisible());
  EXPECT_EQ(window().height(), height - bar);
  EXPECT_EQ(corner(), before);
  EXPECT_EQ(inStep(), "");
  end();
  start();
  EXPECT_FALSE(widget<QToolBar>("manager.toolbar").isVisible());
}

TEST_F(MainWindowTest, theToolbarIsCustomisedAndKeptBetweenRuns) {
  start();
  widget<QAction>("manager.customizeToolbarMenu").trigger();
  auto* dialog = window().findChild<QDialog*>("toolbarCustomise");
  ASSERT_NE(dialog, nullptr);
  auto* list = dialog->findChild<QListWidget*>();
  list->setCurrentRow(0);
  for (QAbstractButton* button : dialog->findChildren<QAbstractButton*>()) {
    if (button->text() == "Move Down") button->click();
  }
  list->item(2)->setCheckState(Qt::Unchecked);
  EXPECT_EQ(interface().manager.toolbar.order(), (std::vector<std::string>{"OA", "StyleManager"}));
  EXPECT_EQ(inStep(), "");
  EXPECT_EQ(shell->registry().find("manager.MT"), nullptr);
  dialog->close();
  end();
  start();
  EXPECT_EQ(interface().manager.toolbar.order(), (std::vector<std::string>{"OA", "StyleManager"}));
  EXPECT_EQ(widget<QToolBar>("manager.toolbar").actions().size(), 2);
}

TEST_F(MainWindowTest, aSheetWaitsWhileTheToolbarIsCustomised) {
  start();
  widget<QAction>("manager.customizeToolbarMenu").trigger();
  auto* dialog = window().findChild<QDialog*>("toolbarCustomise");
  ASSERT_NE(dialog, nullptr);
  widget<QAction>("style.newEJUDMenu").trigger();
  EXPECT_FALSE(interface().newDictionary.NewDicWindow.isShown());
  EXPECT_TRUE(interface().style.quitMenu.isValid());
  dialog->close();
  settle();
  EXPECT_TRUE(interface().newDictionary.NewDicWindow.isShown());
  EXPECT_EQ(sheetOver(window()), shell->windows().widgetOf(interface().newDictionary.NewDicWindow));
}

TEST_F(MainWindowTest, theLastToolbarItemStays) {
  start();
  widget<QAction>("manager.customizeToolbarMenu").trigger();
  auto* list = window().findChild<QDialog*>("toolbarCustomise")->findChild<QListWidget*>();
  for (int row = 0; row < 3; ++row) list->item(row)->setCheckState(Qt::Unchecked);
  EXPECT_EQ(interface().manager.toolbar.order().size(), 1U);
  EXPECT_EQ(list->item(0)->checkState(), Qt::Checked);
}

TEST_F(MainWindowTest, iconsWithoutTextsMakeTheWindowLowerAndThePaneNot) {
  start();
  settleFrame();
  const QPoint before = corner();
  const int paneHeight = pane().height();
  widget<QAction>("manager.customizeToolbarMenu").trigger();
  auto* modes = window().findChild<QDialog*>("toolbarCustomise")->findChild<QComboBox*>();
  modes->setFocus();
  QTest::keyClick(modes, Qt::Key_Down);
  settle();
  EXPECT_EQ(interface().manager.toolbar.displayMode(), Toolbar::DisplayMode::iconOnly);
  EXPECT_EQ(pane().height(), paneHeight);
  EXPECT_EQ(corner(), before);
}

TEST_F(MainWindowTest, aToolbarItemActsAgainAndStaysChosen) {
  start();
  auto& item = widget<QAbstractButton>("manager.StyleManager");
  int switches = 0;
  shell->program().windows().observer = [&switches](Windows::Event event, Window&, int) {
    switches += event == Windows::Event::framed;
  };
  QTest::mouseClick(&item, Qt::LeftButton);
  QTest::mouseClick(&item, Qt::LeftButton);
  EXPECT_EQ(switches, 2);
  EXPECT_TRUE(item.isChecked());
  item.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&item, Qt::Key_Space);
  EXPECT_EQ(switches, 3);
}

}  // namespace
}  // namespace tarvo::test
