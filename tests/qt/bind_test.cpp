// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include "qt/bind/form.h"
#include "qt/bind/in_step.h"
#include "qt/bind/segments_widget.h"
#include "tests/qt/bound_controls.h"

namespace tarvo {
namespace {

struct Bind : testing::Test, test::BoundControls {
  SegmentsWidget& segments() { return static_cast<SegmentsWidget&>(shown(binder.segments(outlets.segments, &window))); }
  std::string inStep() { return outOfStep(binder.registry()); }
};

TEST_F(Bind, everyWidgetBearsTheNameAndLabelOfItsControl) {
  struct Made {
    QWidget* widget;
    const Control* control;
  };
  const std::vector<Made> made{{binder.button(outlets.button, &window), &outlets.button},
                               {binder.check(outlets.check, &window), &outlets.check},
                               {binder.field(outlets.field, &window), &outlets.field},
                               {binder.text(outlets.text, &window), &outlets.text},
                               {binder.image(outlets.image, 32, &window), &outlets.image},
                               {binder.popup(outlets.popup, &window), &outlets.popup},
                               {binder.segments(outlets.segments, &window), &outlets.segments},
                               {binder.table(outlets.table, &window), &outlets.table},
                               {binder.tabs(outlets.tabs, {}, &window), &outlets.tabs},
                               {binder.scroll(outlets.view, &window), &outlets.view}};
  for (const auto& [widget, control] : made) {
    EXPECT_EQ(widget->objectName().toStdString(), control->name());
    EXPECT_EQ(widget->accessibleName().toStdString(), control->label()) << control->name();
    EXPECT_EQ(binder.registry().find(control->name()), widget);
  }
  EXPECT_EQ(inStep(), "");
}

TEST_F(Bind, programmedChangesShowAndSendNothing) {
  auto* button = binder.button(outlets.button, &window);
  auto* check = binder.check(outlets.check, &window);
  auto* field = binder.field(outlets.field, &window);
  auto* popup = binder.popup(outlets.popup, &window);
  auto& pieces = segments();
  auto* tabs = binder.tabs(outlets.tabs, {}, &window);
  outlets.button.setEnabled(false);
  outlets.check.setState(true);
  outlets.field.setStringValue("日本語");
  outlets.popup.selectItemAtIndex(3);
  outlets.segments.setSelected(1, true);
  outlets.tabs.selectPage(1);
  EXPECT_FALSE(button->isEnabled());
  EXPECT_TRUE(check->isChecked());
  EXPECT_EQ(field->text().toStdString(), "日本語");
  EXPECT_EQ(popup->currentText(), "last");
  EXPECT_EQ(pieces.selectedSegment(), 1);
  EXPECT_EQ(tabs->currentIndex(), 1);
  EXPECT_EQ(outlets.actions, 0);
  EXPECT_EQ(inStep(), "");
}

TEST_F(Bind, aControlOutlivesItsWidget) {
  delete binder.popup(outlets.popup, &window);
  EXPECT_EQ(binder.registry().find("test.popup"), nullptr);
  outlets.popup.selectItemAtIndex(1);  // told to nobody
  auto* again = binder.popup(outlets.popup, &window);
  EXPECT_EQ(again->currentIndex(), 1);
}

TEST_F(Bind, hidingComesAndGoesWithTheControl) {
  auto& button = shown(binder.button(outlets.button, &window));
  outlets.button.setHidden(true);
  EXPECT_TRUE(button.isHidden());
  outlets.button.setHidden(false);
  EXPECT_TRUE(button.isVisible());
}

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

TEST_F(Bind, aPageIsBuiltWhenItIsFirstShown) {
  std::vector<int> built;
  const auto builder = [&built](int page) {
    return [&built, page](QWidget* parent) {
      built.push_back(page);
      return new QLabel(QString::number(page), parent);
    };
  };
  auto* stack = binder.pages(outlets.tabs, {builder(0), builder(1)}, &window);
  EXPECT_EQ(built, std::vector{0});
  outlets.tabs.selectPage(1);
  outlets.tabs.selectPage(0);
  outlets.tabs.selectPage(1);
  EXPECT_EQ(built, (std::vector{0, 1}));
  EXPECT_EQ(stack->currentIndex(), 1);
}

TEST_F(Bind, aTabThatTheUserChoosesIsToldOnce) {
  auto& tabs = shown(binder.tabs(outlets.tabs, {}, &window));
  std::vector<int> told;
  outlets.tabs.didSelect = [&told](int page) { told.push_back(page); };
  QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(1).center());
  EXPECT_EQ(told, std::vector{1});
  EXPECT_EQ(tabs.tabText(1), "Second page");
  EXPECT_EQ(inStep(), "");
}

TEST_F(Bind, aScrolledAreaGoesToItsTopAndFollowsTheKeyboard) {
  auto& area = shown(binder.scroll(outlets.view, &window), 300, 100);
  auto* page = new QWidget;
  page->setFixedHeight(1000);
  auto* far = new QLineEdit(page);
  far->move(0, 900);
  area.setWidget(page);
  QApplication::processEvents();
  far->setFocus(Qt::OtherFocusReason);
  EXPECT_GT(area.verticalScrollBar()->value(), 700);
  outlets.view.scrollToTop();
  EXPECT_EQ(area.verticalScrollBar()->value(), 0);
}

TEST_F(Bind, aLabelOfAFormBelongsToItsControl) {
  auto* page = new QWidget(&window);
  Form form(binder, *page);
  auto* combo = binder.popup(outlets.popup, page);
  form.row(outlets.popup, combo);
  const auto labels = page->findChildren<QLabel*>();
  ASSERT_EQ(labels.size(), 1);
  EXPECT_EQ(labels[0]->text().toStdString(), outlets.popup.label());
  EXPECT_EQ(labels[0]->buddy(), combo);
}

struct Difference {
  const char* name;
  void (*make)(test::BoundControls& bound);  // shows something else than the control holds
};
void PrintTo(const Difference& difference, std::ostream* out) { *out << difference.name; }

class OutOfStep : public testing::TestWithParam<Difference>, public test::BoundControls {};

TEST_P(OutOfStep, aDifferenceIsFoundAndNamed) {
  GetParam().make(*this);
  EXPECT_TRUE(outOfStep(binder.registry()).starts_with(std::string("test.") + GetParam().name + ": "))
      << outOfStep(binder.registry());
}

INSTANTIATE_TEST_SUITE_P(
    Bind, OutOfStep,
    testing::Values(
        Difference{"popup",
                   [](test::BoundControls& b) { b.binder.popup(b.outlets.popup, &b.window)->setCurrentIndex(3); }},
        Difference{"button",
                   [](test::BoundControls& b) { b.binder.button(b.outlets.button, &b.window)->setEnabled(false); }},
        Difference{"check",
                   [](test::BoundControls& b) {
                     auto* box = b.binder.check(b.outlets.check, &b.window);
                     const QSignalBlocker quiet(box);
                     box->setChecked(true);
                   }},
        Difference{"field", [](test::BoundControls& b) { b.binder.field(b.outlets.field, &b.window)->setText("x"); }},
        Difference{"text", [](test::BoundControls& b) { b.binder.text(b.outlets.text, &b.window)->hide(); }},
        Difference{"segments",
                   [](test::BoundControls& b) {
                     auto* pieces = static_cast<SegmentsWidget*>(b.binder.segments(b.outlets.segments, &b.window));
                     pieces->segments()[0]->setEnabled(false);
                   }},
        Difference{
            "tabs",
            [](test::BoundControls& b) { b.binder.tabs(b.outlets.tabs, {}, &b.window)->setTabText(0, "other"); }},
        Difference{"window",
                   [](test::BoundControls& b) {
                     b.binder.window(b.outlets.window, b.window);
                     b.window.setWindowTitle("other");
                   }}),
    testing::PrintToStringParamName());

}  // namespace
}  // namespace tarvo
