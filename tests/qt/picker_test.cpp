// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QTableView>
#include <QTest>
#include <functional>

#include "qt/window/sheet.h"
#include "tests/qt/qt_hand.h"
#include "tests/qt/test_window.h"

namespace tarvo {
namespace {

// The picker over the English-to-Japanese list, run by the clicks of a user.
struct PickerTest : testing::Test, test::TestWindow {
  PickerTest() { qputenv("TARVO_NO_ANIMATION", "1"); }

  void begin(const std::string& language = "en") {
    start(language);
    hand.emplace(shell->registry());
    loaded = interface().lists.ejTDTable.numberOfRows();
  }
  PickerOutlets& outlets() { return interface().picker; }
  QDialog& dialog() { return widget<QDialog>("picker.myWindow"); }
  QTableView& list() { return widget<QTableView>("picker.techDicTable"); }
  QLineEdit& filter() { return widget<QLineEdit>("picker.filterField"); }

  // Presses the load button; in the picker does this, and closes it if that has not.
  void inPicker(const std::function<void()>& work) {
    bool ran = false;
    QTimer::singleShot(0, &window(), [&] {
      settle();
      ran = true;
      work();
      EXPECT_EQ(inStep(), "");
      if (dialog().isVisible()) QTest::keyClick(&dialog(), Qt::Key_Escape);
    });
    QTest::mouseClick(&widget<QWidget>("style.ejLoadDicButton"), Qt::LeftButton);
    EXPECT_TRUE(ran);
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(inStep(), "");
  }

  int shownRows() {
    int count = 0;
    for (int row = 0; row < list().model()->rowCount(); ++row) count += list().isRowHidden(row) ? 0 : 1;
    return count;
  }
  // As the desktop delivers it, which knows windows only.
  void clickInWindow(QWidget& top, QWidget& target) {
    QTest::mouseClick(top.windowHandle(), Qt::LeftButton, {}, target.mapTo(&top, target.rect().center()));
    settle();
  }

  std::optional<test::QtHand> hand;
  int loaded = 0;
};

TEST_F(PickerTest, isBuiltWhenItOpensForTheFirstTime) {
  begin();
  EXPECT_EQ(shell->registry().find("picker.myWindow"), nullptr);
  inPicker([this] {
    EXPECT_EQ(dialog().windowTitle(), "Add English–Japanese Technical Dictionaries");
    EXPECT_TRUE(filter().hasFocus());
    EXPECT_GT(list().model()->rowCount(), 0);
  });
}

TEST_F(PickerTest, everyLaidOutControlHasItsWidget) {
  begin();
  inPicker([this] {
    for (const Row& row : interface().rows()) {
      if (row.control.window() != &outlets().myWindow) continue;
      EXPECT_EQ(shell->registry().find(row.control.name()) != nullptr, row.laidOut) << row.control.name();
    }
  });
}

TEST_F(PickerTest, theFilterHidesRowsAndLeavesTheTicks) {
  begin();
  inPicker([this] {
    const int rows = list().model()->rowCount();
    ASSERT_GE(rows, 2);
    hand->tick(outlets().techDicTable, 0, true);
    QTest::keyClicks(&filter(), "no name holds this");
    EXPECT_EQ(shownRows(), 0);
    EXPECT_EQ(list().model()->rowCount(), rows);
    hand->press(outlets().selectShownButton);
    filter().findChild<QAbstractButton*>()->click();  // the cross that empties it
    EXPECT_EQ(shownRows(), rows);
    EXPECT_EQ(list().model()->index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_EQ(list().model()->index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    const QString name = list().model()->index(1, 1).data().toString();
    QTest::keyClicks(&filter(), name.toUpper());
    EXPECT_FALSE(list().isRowHidden(1));
    hand->press(outlets().selectNoneButton);
    EXPECT_EQ(list().model()->index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
  });
}

TEST_F(PickerTest, theKeyboardGoesFromTheFilterIntoTheListAndTicks) {
  begin();
  inPicker([this] {
    QTest::keyClick(&filter(), Qt::Key_Down);
    EXPECT_TRUE(list().hasFocus());
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Space);
    EXPECT_EQ(list().model()->index(list().currentIndex().row(), 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
  });
}

TEST_F(PickerTest, returnAddsWhatIsTicked) {
  begin();
  std::string name;
  inPicker([&] {
    hand->tick(outlets().techDicTable, 0, true);
    name = outlets().techDicTable.cell("dicName", 0).text;
    filter().setFocus();
    QTest::keyClick(&filter(), Qt::Key_Return);
  });
  const TableView& table = interface().lists.ejTDTable;
  ASSERT_EQ(table.numberOfRows(), loaded + 1);
  EXPECT_EQ(name.rfind(table.cell("name", loaded).text, 0), 0U);
}

TEST_F(PickerTest, escapeAndTheCloseBoxCancel) {
  begin();
  for (const bool byEscape : {true, false}) {
    inPicker([&] {
      hand->tick(outlets().techDicTable, 0, true);
      byEscape ? QTest::keyClick(&list(), Qt::Key_Escape) : void(dialog().close());
    });
    EXPECT_EQ(interface().lists.ejTDTable.numberOfRows(), loaded);
  }
}

TEST_F(PickerTest, opensAgainWithTheKeyboardInTheFilter) {
  begin();
  for (int round = 0; round < 2; ++round) {
    inPicker([this] {
      EXPECT_TRUE(filter().hasFocus());
      EXPECT_EQ(filter().text(), "");
      hand->type(outlets().filterField, "x");
      list().setFocus();
    });
  }
}

TEST_F(PickerTest, aClickOnTheWindowBehindItDoesNothing) {
  begin();
  inPicker([this] {
    clickInWindow(window(), widget<QWidget>("manager.OA"));
    EXPECT_EQ(interface().manager.myTabView.selectedPage(), 0);
    QMenuBar& bar = *window().findChild<QMenuBar*>();
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, bar.actionGeometry(bar.actions()[0]).center());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_THROW(hand->press(interface().manager.OA), NotReachable);
  });
}

TEST_F(PickerTest, itsSheetShutsOutThePickerAlone) {
  begin();
  inPicker([this] {
    clickInWindow(dialog(), widget<QWidget>("picker.newUDButton"));
    auto& sheet = widget<QDialog>("picker.newDicWindow");
    ASSERT_EQ(sheetOver(dialog()), &sheet);
    EXPECT_TRUE(widget<QLineEdit>("picker.newDicNameField").hasFocus());
    EXPECT_THROW(hand->press(outlets().okButton), NotReachable);
    clickInWindow(dialog(), widget<QWidget>("picker.okButton"));
    EXPECT_TRUE(dialog().isVisible());
    hand->press(outlets().newDicCancelButton);
    EXPECT_EQ(sheetOver(dialog()), nullptr);
    EXPECT_TRUE(dialog().isVisible());
  });
}

}  // namespace
}  // namespace tarvo
