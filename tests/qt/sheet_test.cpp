// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/sheet.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace tarvo {
namespace {

class Host : public QWidget {
 public:
  int closed = 0;

 protected:
  void closeEvent(QCloseEvent* event) override {
    ++closed;
    event->ignore();
  }
};

// A window with a menu, a button and a field, and a dialog with a field.
struct SheetTest : testing::Test {
  SheetTest() {
    auto* rows = new QVBoxLayout(&host);
    rows->setMenuBar(bar);
    rows->addWidget(button);
    rows->addWidget(field);
    QObject::connect(button, &QPushButton::clicked, button, [this] { ++pressed; });
    QMenu* menu = bar->addMenu("File");
    menu->addAction(action);
    host.addAction(action);
    action->setShortcut(Qt::CTRL | Qt::Key_Q);
    QObject::connect(action, &QAction::triggered, action, [this] { ++chosen; });
    (new QVBoxLayout(sheet))->addWidget(name);
    host.setGeometry(100, 100, 500, 300);
    host.show();
    host.activateWindow();
    QApplication::processEvents();
  }

  // Clicks as the desktop delivers them, which knows windows only.
  void click(QWidget& widget, QPoint place) {
    QTest::mouseClick(host.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&host, place));
    QApplication::processEvents();
  }
  void clickButton() { click(*button, button->rect().center()); }
  void open() {
    openSheet(*sheet, host, 40);
    QApplication::processEvents();
  }

  Host host;
  QMenuBar* bar = new QMenuBar(&host);
  QPushButton* button = new QPushButton("Press", &host);
  QLineEdit* field = new QLineEdit(&host);
  QAction* action = new QAction("Quit", &host);
  QDialog* sheet = new QDialog(&host);
  QLineEdit* name = new QLineEdit(sheet);
  int pressed = 0, chosen = 0;
};

TEST_F(SheetTest, aClickUnderASheetDoesNothing) {
  clickButton();
  EXPECT_EQ(pressed, 1);
  open();
  EXPECT_EQ(sheetOver(host), sheet);
  clickButton();
  EXPECT_EQ(pressed, 1);
  sheet->hide();
  EXPECT_EQ(sheetOver(host), nullptr);
  clickButton();
  EXPECT_EQ(pressed, 2);
}

TEST_F(SheetTest, aSheetThatOpensAgainShutsOutAgain) {
  for (int round = 0; round < 3; ++round) {
    open();
    clickButton();
    sheet->done(0);
    EXPECT_EQ(pressed, round);
    clickButton();
    EXPECT_EQ(pressed, round + 1);
  }
}

TEST_F(SheetTest, theMenuBarStaysOpenUnderASheet) {
  open();
  click(*bar, bar->actionGeometry(bar->actions().front()).center());
  QWidget* menu = QApplication::activePopupWidget();
  ASSERT_NE(menu, nullptr);
  QTest::keyClick(menu, Qt::Key_Down);
  QTest::keyClick(menu, Qt::Key_Return);
  EXPECT_EQ(chosen, 1);
}

TEST_F(SheetTest, commandsKeepTheirKeysUnderASheet) {
  open();
  QTest::keyClick(sheet->windowHandle(), Qt::Key_Q, Qt::ControlModifier);
  EXPECT_EQ(chosen, 1);
  sheet->hide();
  EXPECT_TRUE(sheet->actions().isEmpty());
}

TEST_F(SheetTest, keysOfTheHostGoToItsSheet) {
  field->setFocus();
  open();
  name->setFocus();
  QTest::keyClick(host.windowHandle(), Qt::Key_A);
  EXPECT_EQ(name->text(), "a");
  EXPECT_EQ(field->text(), "");
}

TEST_F(SheetTest, theCloseBoxOfTheHostWaitsForTheSheet) {
  open();
  EXPECT_FALSE(host.close());
  EXPECT_EQ(host.closed, 0);
  sheet->hide();
  host.close();
  EXPECT_EQ(host.closed, 1);
}

TEST_F(SheetTest, aSheetFollowsItsHost) {
  open();
  host.move(170, 190);
  QApplication::processEvents();
  EXPECT_EQ(sheet->geometry().top(), host.mapToGlobal(QPoint(0, 40)).y());
  EXPECT_EQ(sheet->geometry().center().x(), host.geometry().center().x());
}

TEST_F(SheetTest, aSheetDimsItsHostBelowTheMenuBar) {
  const auto light = [this](const QPoint& place) { return host.grab().toImage().pixelColor(place).lightness(); };
  const QPoint below(host.width() / 2, host.height() - 3), above(host.width() - 3, bar->height() / 2);
  const int before = light(below), menu = light(above);
  open();
  EXPECT_LT(light(below), before);
  EXPECT_EQ(light(above), menu);
  host.resize(600, 400);
  EXPECT_LT(light({host.width() - 3, host.height() - 3}), before);
  sheet->hide();
  EXPECT_EQ(light(below), before);
}

}  // namespace
}  // namespace tarvo
