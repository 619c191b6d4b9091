// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include "qt/bind/form.h"
#include "tests/qt/bind_fixture.h"

namespace tarvo::test {
namespace {

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

}  // namespace
}  // namespace tarvo::test
