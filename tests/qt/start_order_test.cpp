// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QDialog>
#include <QEvent>
#include <algorithm>

#include "tests/qt/test_window.h"

namespace tarvo::test {
namespace {

// Notes what comes onto the screen.
class Appearances : public QObject {
 public:
  Appearances() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Paint && dynamic_cast<MainWindow*>(object) != nullptr) note("window painted");
    if (event->type() == QEvent::Show && qobject_cast<QDialog*>(object) != nullptr) note("question shown");
    return false;
  }
  std::vector<std::string> seen;

 private:
  void note(const std::string& what) {
    if (seen.empty() || seen.back() != what) seen.push_back(what);
  }
};

TEST(StartOrder, paintsTheWindowBeforeTheLaunchAsksAnything) {
  TestWindow test;
  test.asksAboutTheService = true;
  Appearances appearances;
  test.start();
  ASSERT_TRUE(test.started);
  ASSERT_GE(appearances.seen.size(), 2U);
  EXPECT_EQ(appearances.seen[0], "window painted");
  EXPECT_EQ(appearances.seen[1], "question shown");
}

TEST(StartOrder, endsBeforeTheLaunchWhenTheProgramQuitsMeanwhile) {
  TestWindow test;
  test.asksAboutTheService = true;
  test.prepare = [&test] {
    QMetaObject::invokeMethod(qApp, [&test] { test.shell->program().quit(); }, Qt::QueuedConnection);
  };
  Appearances appearances;
  test.start();
  EXPECT_TRUE(test.shell->program().isTerminated());
  EXPECT_EQ(std::count(appearances.seen.begin(), appearances.seen.end(), "question shown"), 0);
}

}  // namespace
}  // namespace tarvo::test
