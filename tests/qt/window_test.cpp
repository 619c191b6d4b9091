// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QToolBar>
#include <filesystem>

#include "qt/bind/window_frame.h"
#include "qt/guided_tour.h"
#include "qt/window/sheet.h"
#include "tests/qt/test_window.h"

namespace tarvo {
namespace {

struct MainWindowTest : testing::Test, test::TestWindow {
  MainWindowTest() { qputenv("TARVO_NO_ANIMATION", "1"); }
  Window& core() { return interface().manager.myWindow; }
  QPoint corner() { return window().frameGeometry().topLeft(); }
  void settleFrame() { settle(700); }  // until the decorations are known
  QWidget& pane() { return widget<QWidget>("manager.myTabView"); }
};

TEST_F(MainWindowTest, comesUpWithTheStylePaneAndItsSize) {
  start();
  ASSERT_TRUE(started);
  EXPECT_TRUE(window().isVisible());
  EXPECT_EQ(window().windowTitle(), "Translation Styles");
  EXPECT_GE(pane().width(), 780);
  EXPECT_GE(pane().height(), 620);
  EXPECT_EQ(inStep(), "");
}

TEST_F(MainWindowTest, aFirstStartMovesNothingAndStoresNoPlace) {
  start();
  EXPECT_EQ(defaults().string("MyWindowFrame"), nullptr) << *defaults().string("MyWindowFrame");
}

TEST_F(MainWindowTest, onlyTheShownPaneIsBuilt) {
  start();
  EXPECT_NE(shell->registry().find("style.stylePopup"), nullptr);
  EXPECT_EQ(shell->registry().find("manager.officeToolPopup"), nullptr);
  EXPECT_EQ(shell->registry().find("style.ejOption1Popup"), nullptr);
  EXPECT_EQ(shell->registry().find("manager.displayCloseButton"), nullptr);
}

TEST_F(MainWindowTest, aPaneSwitchKeepsTheUpperLeftCorner) {
  start();
  settleFrame();
  const QPoint before = corner();
  const float top = core().frame().top();
  for (const char* item : {"manager.OA", "manager.MT", "manager.StyleManager"}) {
    widget<QAbstractButton>(item).click();
    settle();
    EXPECT_EQ(corner(), before) << item;
    EXPECT_EQ(core().frame().top(), top) << item;
    EXPECT_EQ(window().minimumSize(), window().maximumSize());
    EXPECT_EQ(inStep(), "");
  }
  EXPECT_EQ(defaults().string("ToolbarTag") != nullptr ? *defaults().string("ToolbarTag") : "", "StyleManager");
}

TEST_F(MainWindowTest, thePaneHasItsSizeAtTheEndOfAnAnimation) {
  qunsetenv("TARVO_NO_ANIMATION");
  start();
  widget<QAbstractButton>("manager.OA").click();
  settle(400);
  EXPECT_TRUE(pane().isVisible());
  EXPECT_EQ(pane().height(), qRound(shell->windows().paneSize(Pane::office).height));
  EXPECT_EQ(inStep(), "");
}

TEST_F(MainWindowTest, theUsersMoveIsKeptAndRestored) {
  start();
  settleFrame();
  window().move(corner() + QPoint(15, 25));  // what a window manager does when the user drags the title bar
  settle();
  const QPoint moved = corner();
  const Rect frame = core().frame();
  EXPECT_EQ(qRound(frame.x), moved.x());
  EXPECT_EQ(qRound(frame.top()), window().screen()->geometry().height() - moved.y());
  ASSERT_NE(defaults().string("MyWindowFrame"), nullptr);
  EXPECT_EQ(*defaults().string("MyWindowFrame"), savedFrameString(frame, primaryScreen()));
  end();
  start();
  settleFrame();
  EXPECT_EQ(corner(), moved);
  EXPECT_EQ(core().frame(), frame);
}

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

TEST_F(MainWindowTest, closingTheWindowEndsTheProgram) {
  start();
  window().close();
  EXPECT_TRUE(shell->program().isTerminated());
}

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
  QMenu* view = bar->actions()[1]->menu();
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

TEST_F(MainWindowTest, whatCouldNotBeSavedIsSaidUntilItIs) {
  start();
  const std::string path = shell->program().rooms().store.path().text();
  std::filesystem::rename(path, path + ".away");
  std::filesystem::create_directory(path);  // nothing can replace a folder
  shell->program().rooms().store.writeTarvoStylePlist();
  auto* notice = window().findChild<QLabel*>("notice");
  ASSERT_NE(notice, nullptr);
  EXPECT_TRUE(notice->isVisible());
  EXPECT_EQ(notice->text().toStdString(), "Not saved yet: " + path);
  std::filesystem::remove(path);
  shell->program().rooms().store.writeTarvoStylePlist();
  EXPECT_FALSE(notice->isVisible());
}

// The caution appears only on a narrow screen, so it is run by hand here.
TEST_F(MainWindowTest, theSmallScreenCautionBlocksUntilItIsClosed) {
  start();
  ManagerOutlets& outlets = interface().manager;
  for (const bool byEscape : {false, true}) {
    bool wasBlocked = false;
    QTimer::singleShot(0, &window(), [&] {
      auto& dialog = widget<QDialog>("manager.displayAlertWindow");
      wasBlocked =
          QApplication::activeModalWidget() == &dialog && !shell->program().windows().isReachable(outlets.StyleManager);
      widget<QCheckBox>("manager.noDisplayDialogCheckBox").click();
      byEscape ? QTest::keyClick(&dialog, Qt::Key_Escape)
               : widget<QAbstractButton>("manager.displayCloseButton").click();
    });
    shell->program().windows().runModalForWindow(outlets.displayAlertWindow);
    shell->program().windows().orderOut(outlets.displayAlertWindow);
    EXPECT_TRUE(wasBlocked);
    EXPECT_FALSE(widget<QDialog>("manager.displayAlertWindow").isVisible());
    EXPECT_EQ(defaults().find("NoDialogState")->integerValue(), byEscape ? 0 : 1);
    EXPECT_EQ(inStep(), "");
  }
}

TEST_F(MainWindowTest, theTourLeavesPicturesAndEndsTheProgram) {
  asksAboutTheService = true;
  start();
  testing::internal::CaptureStdout();
  EXPECT_TRUE(takeGuidedTour(*shell, folder / "pictures"));
  const std::string printed = testing::internal::GetCapturedStdout();
  EXPECT_TRUE(shell->program().isTerminated());
  EXPECT_EQ(folder.names("pictures").size(), 9U);
  EXPECT_NE(printed.find(shell->program().rooms().store.path().text()), std::string::npos);
}

TEST_F(MainWindowTest, aTourThatCannotLeavePicturesFails) {
  start();
  folder.write("pictures", "a file");
  testing::internal::CaptureStderr();
  EXPECT_FALSE(takeGuidedTour(*shell, folder / "pictures"));
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

TEST_F(MainWindowTest, assistiveToolsSeeAWindow) {
  start();
  QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&window());
  ASSERT_NE(seen, nullptr);
  EXPECT_EQ(seen->role(), QAccessible::Window);
  EXPECT_FALSE(seen->text(QAccessible::Name).isEmpty());
}

TEST_F(MainWindowTest, theKeyboardStaysInThePaneWhileTheWindowMoves) {
  qunsetenv("TARVO_NO_ANIMATION");
  start();
  widget<QWidget>("style.stylePopup").setFocus();
  for (const char* pane : {"manager.OA", "manager.StyleManager"}) {
    QTest::mouseClick(&widget<QAbstractButton>(pane), Qt::LeftButton);
    settle(500);
    ASSERT_NE(window().focusWidget(), nullptr) << pane;
    EXPECT_TRUE(this->pane().isAncestorOf(window().focusWidget())) << pane;
    EXPECT_TRUE(window().focusWidget()->isVisible()) << pane;
  }
  EXPECT_EQ(window().focusWidget(), &widget<QWidget>("style.stylePopup"));
}

TEST_F(MainWindowTest, theChosenToolIsCalledByItsName) {
  start();
  const auto isNamed = [this](const QString& name) {
    for (const QLabel* label : pane().findChildren<QLabel*>()) {
      if (label->text() == name && label->isVisible()) return true;
    }
    return false;
  };
  EXPECT_TRUE(isNamed("Tarvo Manager"));
  QTest::mouseClick(pane().findChild<QAbstractButton*>("style.TEAppSeg2.1"), Qt::LeftButton);
  EXPECT_TRUE(isNamed("Translation Memory"));
  EXPECT_FALSE(isNamed("Tarvo Manager"));
}

}  // namespace
}  // namespace tarvo
