// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QTest>
#include <filesystem>

#include "qt/bind/window_frame.h"
#include "tests/qt/main_window_fixture.h"

namespace tarvo::test {
namespace {

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

TEST_F(MainWindowTest, closingTheWindowEndsTheProgram) {
  start();
  window().close();
  EXPECT_TRUE(shell->program().isTerminated());
}

TEST_F(MainWindowTest, whatCouldNotBeSavedIsSaidUntilItIs) {
  start();
  const std::string path = shell->program().rooms().store.path().text();
  std::filesystem::rename(path, path + ".away");
  std::filesystem::create_directory(path);  // nothing can replace a folder
  const int width = window().width();
  shell->program().rooms().store.writeTarvoStylePlist();
  auto* notice = window().findChild<QLabel*>("manager.noticeText");
  ASSERT_NE(notice, nullptr);
  EXPECT_TRUE(notice->isVisible());
  const QString whole = QString::fromStdString("Not saved yet: " + path + ": cannot be written; it is a folder");
  EXPECT_EQ(notice->text(), whole);
  EXPECT_EQ(notice->accessibleDescription(), whole);
  QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(notice);
  ASSERT_NE(heard, nullptr);
  EXPECT_EQ(heard->role(), QAccessible::Notification);
  EXPECT_EQ(window().width(), width);
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
}  // namespace tarvo::test
