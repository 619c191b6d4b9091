// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include "tests/qt/main_window_fixture.h"

// The line of notices and its list, as they are seen and heard.
namespace tarvo::test {
namespace {

struct NoticeLineWindow : MainWindowTest {
  void tell(const std::string& text) { shell->program().rooms().notices.tell({.text = text}); }
  QPushButton& listButton() { return widget<QPushButton>("manager.noticeListButton"); }
  QTableView& list() { return widget<QTableView>("manager.noticeTable"); }
};

TEST_F(NoticeLineWindow, theListShowsTheWholeOfALongNotice) {
  start();
  tell("short");
  std::string text = "long";
  for (int i = 0; i < 60; ++i) text += " and longer";
  tell(text);
  listButton().click();
  settle();
  ASSERT_TRUE(list().isVisible());
  EXPECT_GT(list().rowHeight(0), 3 * list().fontMetrics().lineSpacing());
  EXPECT_LT(list().rowHeight(1), 3 * list().fontMetrics().lineSpacing());
  EXPECT_GE(list().viewport()->height(), list().verticalHeader()->length());
}

TEST_F(NoticeLineWindow, theButtonKeepsItsPlaceWhileNoTextIsShown) {
  start();
  tell("one");
  settle();
  const QRect before = listButton().geometry();
  shell->program().rooms().notices.dismiss();
  settle();
  EXPECT_FALSE(widget<QLabel>("manager.noticeText").isVisible());
  EXPECT_EQ(listButton().geometry(), before);
}

TEST_F(NoticeLineWindow, neverTakesTheKeyboard) {
  start();
  QWidget* before = QApplication::focusWidget();
  tell("one");
  settle();
  EXPECT_EQ(QApplication::focusWidget(), before);
}

TEST_F(NoticeLineWindow, neverTakesTheKeyboardOfAWindowThatComesUpEither) {
  folder.write("root/Users/taro/Library/Preferences/Wordhaven/TarvoStyle2009.plist", "damaged");
  start();
  ASSERT_TRUE(widget<QPushButton>("manager.noticeButton").isVisible());
  EXPECT_EQ(window().focusWidget()->objectName(), "manager.StyleManager");
}

TEST_F(NoticeLineWindow, isANotificationToAssistiveToolsByTheNameOfItsText) {
  start();
  for (const char* text : {"one", "two"}) {
    tell(text);
    QAccessibleInterface* line = QAccessible::queryAccessibleInterface(&widget<QLabel>("manager.noticeText"));
    EXPECT_EQ(line->role(), QAccessible::Notification);
    EXPECT_EQ(line->text(QAccessible::Name), text);
    EXPECT_EQ(line->text(QAccessible::Description), "Notice");
  }
}

}  // namespace
}  // namespace tarvo::test
