// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include "qt/window/sheet.h"
#include "tests/qt/main_window_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(MainWindowTest, aShortcutIsRefusedWhileASheetOfTheStylePaneIsOpen) {
  start();
  window().activateWindow();
  ProcessFlags& flags = shell->program().rooms().flags;
  flags.gMenuControllFlag = true;
  QTest::keyClick(&window(), Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(interface().manager.myTabView.selectedPage(), 0);
  flags.gMenuControllFlag = false;
  QTest::keyClick(&window(), Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(interface().manager.myTabView.selectedPage(), 1);
  EXPECT_EQ(inStep(), "");
}

TEST_F(MainWindowTest, aMenuAsksItsItemsWhenItOpensAndForgetsWhenItCloses) {
  start();
  auto* bar = window().findChild<QMenuBar*>();
  QMenu* view = bar->actions()[2]->menu();
  EXPECT_TRUE(view->isEmpty());
  ProcessFlags& flags = shell->program().rooms().flags;
  flags.gMenuControllFlag = true;
  view->popup({0, 0});
  EXPECT_FALSE(widget<QAction>("manager.mailMenu").isEnabled());
  view->hide();
  EXPECT_TRUE(widget<QAction>("manager.mailMenu").isEnabled());
  flags.gMenuControllFlag = false;
  view->popup({0, 0});
  EXPECT_TRUE(widget<QAction>("manager.mailMenu").isEnabled());
  EXPECT_TRUE(widget<QAction>("manager.toolbarMenu").isChecked());
  view->hide();
}

TEST_F(MainWindowTest, aNewDictionaryAskedForUnderTheLaunchsQuestionComesAfterIt) {
  asksAboutTheService = true;
  engine = "none";
  start();
  const QDialog* question = sheetOver(window());
  ASSERT_NE(question, nullptr);
  widget<QAction>("style.newEJUDMenu").trigger();
  EXPECT_TRUE(interface().style.quitMenu.isValid());
  QTest::mouseClick(question->findChild<QPushButton*>("alert.1"), Qt::LeftButton);
  settle();
  EXPECT_TRUE(interface().newDictionary.NewDicWindow.isShown());
  EXPECT_FALSE(interface().style.quitMenu.isValid());
  QTest::mouseClick(&widget<QPushButton>("style.NewDicCancelButton"), Qt::LeftButton);
  EXPECT_TRUE(interface().style.quitMenu.isValid());
}

}  // namespace
}  // namespace tarvo::test
