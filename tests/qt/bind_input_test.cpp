// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include "qt/bind/form.h"
#include "tests/qt/bind_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(Bind, aButtonSendsOncePerPress) {
  auto& button = shown(binder.button(outlets.button, &window));
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(outlets.actions, 1);
  button.setFocus();
  QTest::keyClick(&button, Qt::Key_Space);
  EXPECT_EQ(outlets.actions, 2);
  outlets.button.setEnabled(false);
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(outlets.actions, 2);
}

TEST_F(Bind, aCheckBoxSendsForMouseKeyAndAssistiveToggle) {
  auto& box = shown(binder.check(outlets.check, &window));
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Space);
  EXPECT_EQ(outlets.actions, 1);
  EXPECT_TRUE(outlets.check.state());
  box.click();
  EXPECT_EQ(outlets.actions, 2);
  box.toggle();  // what assistive tools do
  EXPECT_EQ(outlets.actions, 3);
  EXPECT_TRUE(outlets.check.state());
}

TEST_F(Bind, typingReachesTheControlAndKeepsTheCursor) {
  auto& field = shown(binder.field(outlets.field, &window));
  outlets.field.setStringValue("ab");
  field.setCursorPosition(1);
  QTest::keyClicks(&field, "XY");
  EXPECT_EQ(outlets.field.stringValue(), "aXYb");
  EXPECT_EQ(field.cursorPosition(), 3);
  EXPECT_EQ(outlets.actions, 0);
}

TEST_F(Bind, choosingTheShownItemAgainSends) {
  auto& combo = shown(binder.popup(outlets.popup, &window), 200, 28);
  for (int time = 1; time <= 2; ++time) {
    combo.showPopup();
    QTest::keyClick(combo.view(), Qt::Key_Return);
    EXPECT_EQ(outlets.actions, time);
    EXPECT_EQ(outlets.popup.indexOfSelectedItem(), 0);
  }
}

TEST_F(Bind, theKeyboardSkipsDividersAndSendsEachTime) {
  auto& combo = shown(binder.popup(outlets.popup, &window));
  combo.setFocus();
  QTest::keyClick(&combo, Qt::Key_Down);
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(outlets.popup.indexOfSelectedItem(), 3);
  EXPECT_EQ(outlets.actions, 2);
}

// As assistive tools choose: they set any item, and the combo box says that it was chosen.
TEST_F(Bind, aDividerThatWasChosenAllTheSameIsNotShownAsChosen) {
  auto& combo = shown(binder.popup(outlets.popup, &window));
  constexpr int divider = 2;
  ASSERT_FALSE(combo.model()->flags(combo.model()->index(divider, 0)).testFlag(Qt::ItemIsEnabled));
  combo.setCurrentIndex(divider);
  Q_EMIT combo.activated(divider);
  EXPECT_EQ(combo.currentIndex(), outlets.popup.indexOfSelectedItem());
  EXPECT_NE(combo.currentIndex(), divider);
}

TEST_F(Bind, theWheelChangesNoPopUp) {
  auto& combo = shown(binder.popup(outlets.popup, &window));
  QWheelEvent wheel({5, 5}, combo.mapToGlobal(QPointF(5, 5)), {0, -120}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&combo, &wheel);
  EXPECT_EQ(combo.currentIndex(), 0);
  EXPECT_EQ(outlets.actions, 0);
  EXPECT_FALSE(wheel.isAccepted());
}

TEST_F(Bind, aPopUpWithoutItemShowsWhatItWasGivenForThat) {
  auto* combo = binder.detailPopup(outlets.popup, &window);
  outlets.popup.selectItemAtIndex(-1);
  EXPECT_EQ(combo->currentIndex(), -1);
  EXPECT_EQ(combo->placeholderText(), "Not set");
  EXPECT_EQ(combo->count(), 4);
  EXPECT_EQ(inStep(), "");
}

TEST_F(Bind, newItemsOfAPopUpSendNothing) {
  auto* combo = binder.popup(outlets.popup, &window);
  outlets.popup.setItems({{"only", 1}});
  EXPECT_EQ(combo->count(), 1);
  EXPECT_EQ(combo->currentText(), "only");
  outlets.popup.setItemTitle(0, "renamed");
  EXPECT_EQ(combo->currentText(), "renamed");
  outlets.popup.setItems({});
  EXPECT_EQ(combo->currentIndex(), -1);
  EXPECT_EQ(outlets.actions, 0);
}

TEST_F(Bind, aSegmentSendsOncePerPressAlsoTheChosenOne) {
  auto& pieces = segments();
  QToolButton& two = *pieces.segments()[1];
  QTest::mouseClick(&two, Qt::LeftButton);
  EXPECT_EQ(outlets.actions, 1);
  QTest::mouseClick(&two, Qt::LeftButton);
  EXPECT_EQ(outlets.actions, 2);
  EXPECT_TRUE(two.isChecked());
  two.setFocus();
  QTest::keyClick(&two, Qt::Key_Space);
  EXPECT_EQ(outlets.actions, 3);
  pieces.segments()[0]->toggle();  // what assistive tools do
  EXPECT_EQ(outlets.actions, 4);
  EXPECT_EQ(outlets.segments.selectedSegment(), 0);
  QTest::mouseClick(pieces.segments()[2], Qt::LeftButton);
  EXPECT_EQ(outlets.actions, 4);
  EXPECT_EQ(inStep(), "");
}

TEST_F(Bind, segmentsCanBeDeselectedByTheProgram) {
  auto& pieces = segments();
  outlets.segments.setSelected(1, true);
  outlets.segments.setSelected(1, false);
  EXPECT_EQ(pieces.selectedSegment(), -1);
  EXPECT_EQ(outlets.actions, 0);
}

}  // namespace
}  // namespace tarvo::test
