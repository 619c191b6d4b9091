// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <functional>
#include <set>
#include <tuple>

#include "app/panes.h"
#include "qt/look/fonts.h"
#include "tests/qt/test_window.h"

namespace tarvo {
namespace {

// One page of the window, by the pages of the tab views on the way to it.
struct Page {
  const char* name;
  int pane = 0, direction = 0, edited = 0, list = 0;
};
constexpr Page pages[] = {{"english dictionaries"},
                          {"english user dictionaries", 0, 0, 0, 1},
                          {"english memories", 0, 0, 0, 2},
                          {"english options", 0, 0, 1},
                          {"japanese dictionaries", 0, 1, 0},
                          {"japanese user dictionaries", 0, 1, 0, 1},
                          {"japanese memories", 0, 1, 0, 2},
                          {"japanese options", 0, 1, 1},
                          {"office", 1},
                          {"mail", 2}};

struct Look {
  const char* language;
  int percent;
};

void PrintTo(const Look& look, std::ostream* out) { *out << look.language << " at " << look.percent << " %"; }

class Panes : public testing::TestWithParam<Look>, protected test::TestWindow {
 protected:
  Panes() : font_(QApplication::font()) {
    qputenv("TARVO_NO_ANIMATION", "1");
    QFont font = applicationFont(GetParam().language);
    font.setPointSizeF(font.pointSizeF() * GetParam().percent / 100);
    QApplication::setFont(font);
    start(GetParam().language);
  }
  ~Panes() override {
    end();
    QApplication::setFont(font_);
  }

  void show(const Page& page) {
    Interface& controls = interface();
    controls.lists.directionTab.selectPage(page.direction);
    (page.direction == 0 ? controls.options.ejEditTab : controls.options.jeEditTab).selectPage(page.edited);
    (page.direction == 0 ? controls.lists.ejListTab : controls.lists.jeListTab).selectPage(page.list);
    Button* const items[] = {&controls.manager.StyleManager, &controls.manager.OA, &controls.manager.MT};
    items[page.pane]->userPress();  // the window takes the pane's size
    settle();
  }

  // Calls with each page on show.
  void onEachPage(const std::function<void(const Page&)>& look) {
    for (const Page& page : pages) {
      SCOPED_TRACE(page.name);
      show(page);
      look(page);
    }
  }

  template <class W>
  std::vector<W*> shown() {
    std::vector<W*> found;
    for (W* widget : window().findChildren<W*>()) {
      if (widget->isVisible()) found.push_back(widget);
    }
    return found;
  }

  std::set<QWidget*> takingTheKeyboard() {
    std::set<QWidget*> found;
    for (QWidget* widget : shown<QWidget>()) {
      if (widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr) {
        found.insert(widget);
      }
    }
    return found;
  }

 private:
  QFont font_;
};

std::string called(const QWidget& widget) {
  const std::string name = widget.objectName().toStdString();
  return name.empty() ? widget.metaObject()->className() : name;
}

TEST_P(Panes, everyControlOfTheWindowHasItsWidget) {
  onEachPage([](const Page&) {});
  for (const Row& row : interface().rows()) {
    if (row.control.window() != &interface().manager.myWindow) continue;
    EXPECT_EQ(shell->registry().find(row.control.name()) != nullptr, row.laidOut) << row.control.name();
  }
  EXPECT_EQ(inStep(), "");
}

TEST_P(Panes, everythingThatTakesTheKeyboardHasAName) {
  onEachPage([this](const Page&) {
    EXPECT_FALSE(takingTheKeyboard().empty());
    for (const QWidget* widget : takingTheKeyboard()) {
      EXPECT_FALSE(widget->accessibleName().isEmpty()) << called(*widget);
    }
  });
}

// From one control to the next by Tab, until the first comes again.
std::vector<QWidget*> tabRound(QWidget& window) {
  std::vector<QWidget*> order;
  std::set<QWidget*> seen;
  window.setFocus();
  for (int steps = 0; steps < 200; ++steps) {
    QTest::keyClick(window.focusWidget() != nullptr ? window.focusWidget() : &window, Qt::Key_Tab);
    QWidget* now = window.focusWidget();
    if (now == nullptr || !seen.insert(now).second) break;
    order.push_back(now);
  }
  return order;
}

TEST_P(Panes, tabReachesEverythingInReadingOrder) {
  onEachPage([this](const Page&) {
    const std::vector<QWidget*> order = tabRound(window());
    EXPECT_EQ(std::set<QWidget*>(order.begin(), order.end()), takingTheKeyboard());
    for (QScrollBar* bar : shown<QScrollBar>()) bar->setValue(0);  // they followed the keyboard
    std::set<std::pair<int, int>> places;                          // of the upper left corners, line by line
    for (QWidget* widget : order) {
      const QPoint corner = widget->mapTo(&window(), QPoint());
      const bool isAfterAll = places.empty() || std::pair(corner.y(), corner.x()) > *places.rbegin();
      EXPECT_TRUE(isAfterAll) << called(*widget);
      places.emplace(corner.y(), corner.x());
    }
  });
}

// The text of a label, a button or the tabs stands whole in its widget.
void expectRoom(const QLabel& label) {
  if (label.wordWrap()) {
    EXPECT_GE(label.height(), label.heightForWidth(label.width())) << label.text().toStdString();
  } else {
    EXPECT_GE(label.width(), label.sizeHint().width()) << label.text().toStdString();
    EXPECT_GE(label.height(), label.sizeHint().height()) << label.text().toStdString();
  }
}

void expectRoom(const QAbstractButton& button) {
  EXPECT_GE(button.width(), button.sizeHint().width()) << called(button);
  EXPECT_GE(button.height(), button.sizeHint().height()) << called(button);
}

void expectRoom(const QTabBar& bar) { EXPECT_GE(bar.width(), bar.sizeHint().width()) << called(bar); }

void expectRoom(const QComboBox& combo) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
  EXPECT_GE(field.height(), combo.fontMetrics().height()) << called(combo);
  for (int i = 0; i < combo.count(); ++i) {
    const QString text = combo.itemText(i);
    EXPECT_GE(field.width(), combo.fontMetrics().horizontalAdvance(text)) << called(combo) << text.toStdString();
  }
}

// Nothing hangs over the right edge of what it stands in.
void expectInside(const QWidget& widget) {
  for (const QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
    const int right = widget.mapTo(above, QPoint(widget.width(), 0)).x();
    EXPECT_LE(right, above->width()) << called(widget) << " in " << called(*above);
    if (above->isWindow()) return;
  }
}

TEST_P(Panes, everyTextHasRoom) {
  onEachPage([this](const Page&) {
    for (const QLabel* label : shown<QLabel>()) expectRoom(*label), expectInside(*label);
    for (const QAbstractButton* button : shown<QAbstractButton>()) expectRoom(*button), expectInside(*button);
    for (const QTabBar* bar : shown<QTabBar>()) expectRoom(*bar), expectInside(*bar);
    for (const QComboBox* combo : shown<QComboBox>()) {
      expectInside(*combo);
      // The names of styles are the user's.
      if (combo->objectName() != QLatin1String("style.stylePopup")) expectRoom(*combo);
    }
  });
}

TEST_P(Panes, onlyTheDetailedOptionsScroll) {
  onEachPage([this](const Page& page) {
    for (const QScrollBar* bar : shown<QScrollBar>()) {
      const bool isDetails = std::string_view(page.name) == "japanese options" && bar->orientation() == Qt::Vertical;
      EXPECT_TRUE(isDetails || GetParam().percent > 100) << called(*bar->parentWidget()->parentWidget());
    }
  });
}

TEST_P(Panes, aPaneIsLargerThanItsSizeForLargerTextsOnly) {
  onEachPage([this](const Page& page) {
    const PaneRow& pane = paneRows.at(static_cast<std::size_t>(page.pane));
    const Size size = shell->windows().paneSize(pane.pane), least = pane.size;
    EXPECT_GE(size.width, least.width);
    EXPECT_GE(size.height, least.height);
    if (GetParam().percent == 100) {
      EXPECT_EQ(std::pair(size.width, size.height), std::pair(least.width, least.height));
    }
  });
}

INSTANTIATE_TEST_SUITE_P(Looks, Panes,
                         testing::Values(Look{"en", 100}, Look{"ja", 100}, Look{"en", 200}, Look{"ja", 200}),
                         [](const testing::TestParamInfo<Look>& look) {
                           return look.param.language + std::to_string(look.param.percent);
                         });

}  // namespace
}  // namespace tarvo
