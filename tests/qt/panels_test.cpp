// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "platform/outlets.h"
#include "platform/windows.h"
#include "qt/window/alert_dialog.h"
#include "qt/window/qt_panels.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

struct SomeOutlets : Outlets {
  Window window{*this, "window"};
  SomeOutlets() : Outlets("test") {}
};

struct PanelsTest : testing::Test {
  AlertDialog& alert() { return *dynamic_cast<AlertDialog*>(QApplication::activeModalWidget()); }
  SomeOutlets outlets;
  QWidget host;
  QtPanels panels{{[this](Window*) { return &host; }, [](Window*) { return 30; },
                   [this](const std::string& path) { return folder / path; }}};
  test::TemporaryFolder folder;
  const Alert question{"Replace?", "The style is replaced.", {"Cancel", "Replace"}, ""};
};

TEST_F(PanelsTest, anAlertAnswersTheButtonThatWasPressed) {
  for (int button = 0; button < 2; ++button) {
    QTimer::singleShot(0, &host, [&] { alert().findChild<QPushButton*>(QString("alert.%1").arg(button))->click(); });
    EXPECT_EQ(panels.runAlertPanel(question), button);
  }
}

TEST_F(PanelsTest, returnIsTheFirstButtonAndEscapeTheLast) {
  for (const auto& [key, button] : {std::pair(Qt::Key_Return, 0), std::pair(Qt::Key_Escape, 1)}) {
    QTimer::singleShot(0, &host, [&, pressed = key] { QTest::keyClick(&alert(), pressed); });
    EXPECT_EQ(panels.runAlertPanel(question), button);
  }
}

TEST_F(PanelsTest, theFirstButtonStandsRightmostAndTextsAreShownAsTheyAre) {
  AlertDialog dialog({"<b>Title</b>", "100 % of %d", {"First", "Second", "Third"}, "details"}, nullptr);
  dialog.show();
  const auto left = [&](const char* name) { return dialog.findChild<QPushButton*>(name)->x(); };
  EXPECT_GT(left("alert.0"), left("alert.1"));
  EXPECT_GT(left("alert.1"), left("alert.2"));
  EXPECT_EQ(dialog.windowTitle(), "<b>Title</b>");
}

TEST_F(PanelsTest, aSheetReturnsAtOnceHangsInItsHostAndTellsItsButton) {
  host.setGeometry(100, 100, 700, 400);
  host.show();
  int told = -1;
  panels.beginAlertSheet(outlets.window, question, [&](int button) { told = button; });
  EXPECT_EQ(told, -1);
  auto* sheet = host.findChild<AlertDialog*>();
  ASSERT_NE(sheet, nullptr);
  EXPECT_TRUE(sheet->isVisible());
  EXPECT_EQ(sheet->geometry().top(), host.mapToGlobal(QPoint(0, 30)).y());
  host.move(140, 160);
  QApplication::processEvents();
  EXPECT_EQ(sheet->geometry().top(), host.mapToGlobal(QPoint(0, 30)).y());
  sheet->findChild<QPushButton*>("alert.1")->click();
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace tarvo
