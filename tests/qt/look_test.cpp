// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPixmap>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <memory>

#include "qt/look/fonts.h"
#include "qt/look/metrics.h"
#include "qt/look/palette.h"
#include "qt/look/segment.h"
#include "qt/look/tarvo_style.h"
#include "tests/qt/picture.h"

namespace tarvo {
namespace {

using test::isRed;
using test::picture;
using test::pixels;

QStyle& style() { return *QApplication::style(); }

struct Kind {
  const char* name;
  std::unique_ptr<QWidget> (*make)(const QString& text);
};

std::unique_ptr<QWidget> popUp(const QString& text) {
  auto combo = std::make_unique<QComboBox>();
  combo->addItem(text);
  return combo;
}

std::unique_ptr<QWidget> toolbarItem(const QString& text) {
  auto button = std::make_unique<QToolButton>();
  button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  button->setIconSize({metrics::toolbarIcon, metrics::toolbarIcon});
  QPixmap drawing(metrics::toolbarIcon, metrics::toolbarIcon);  // without a picture the text would stand alone
  drawing.fill(Qt::green);
  button->setIcon(drawing);
  button->setText(text);
  return button;
}

std::unique_ptr<QWidget> segment(const QString& text) {
  auto button = std::make_unique<QToolButton>();
  button->setText(text);
  makeSegment(*button, SegmentPlace::only);
  return button;
}

std::unique_ptr<QWidget> tabs(const QString& text) {
  auto bar = std::make_unique<QTabBar>();
  bar->setDrawBase(false);
  bar->addTab(text);
  return bar;
}

std::unique_ptr<QWidget> menu(const QString& text) {
  auto shown = std::make_unique<QMenu>();
  shown->addAction(text)->setShortcut(Qt::CTRL | Qt::Key_N);
  shown->addAction(text)->setCheckable(true);
  return shown;
}

const Kind kinds[] = {
    {"pushButton", [](const QString& text) -> std::unique_ptr<QWidget> { return std::make_unique<QPushButton>(text); }},
    {"checkBox", [](const QString& text) -> std::unique_ptr<QWidget> { return std::make_unique<QCheckBox>(text); }},
    {"popUp", popUp},
    {"toolbarItem", toolbarItem},
    {"segment", segment},
    {"tabs", tabs},
    {"menu", menu},
};

class TextRoom : public testing::TestWithParam<std::tuple<Kind, const char*, int>> {};

// A text that is clipped or shortened at the size that the control asks for has less ink than with room to spare.
TEST_P(TextRoom, aControlAsksForRoomForItsWholeText) {
  const auto& [kind, language, percent] = GetParam();
  const QString text =
      qstrcmp(language, "ja") == 0 ? QStringLiteral("専門辞書の読み込みjg…") : QStringLiteral("Åjgy Load…");
  QFont font = applicationFont(language);
  font.setPointSizeF(font.pointSizeF() * percent / 100);
  QPalette red = makePalette(Scheme::light);
  for (const auto role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text}) red.setColor(role, Qt::red);
  const auto inkWith = [&, make = kind.make](QSize room) {
    const std::unique_ptr<QWidget> control = make(text);
    control->setFont(font);
    control->setPalette(red);
    control->ensurePolished();
    const QSize wanted = control->sizeHint() + room;
    if (!room.isNull()) control->setMinimumSize(wanted);
    return pixels(picture(*control, wanted), isRed);
  };
  const int ink = inkWith({0, 0});
  EXPECT_GT(ink, 50);
  EXPECT_EQ(inkWith({80, 40}), ink);
}

INSTANTIATE_TEST_SUITE_P(Controls, TextRoom,
                         testing::Combine(testing::ValuesIn(kinds), testing::Values("en", "ja"),
                                          testing::Values(100, 200)),
                         [](const auto& row) {
                           return std::string(std::get<0>(row.param).name) + std::get<1>(row.param) +
                                  std::to_string(std::get<2>(row.param));
                         });

TEST(Metrics, heightsFollowTheFontOnTheGrid) {
  for (const char* language : {"en", "ja"}) {
    for (const int factor : {1, 2, 3}) {
      QFont font = applicationFont(language);
      font.setPointSizeF(font.pointSizeF() * factor);
      const QFontMetrics text(font);
      for (const int height : {metrics::controlHeight(text), metrics::rowHeight(text), metrics::checkBoxSize(text)})
        EXPECT_EQ(height % metrics::grid, 0);
      EXPECT_GE(metrics::controlHeight(text), text.height() + 8);
      EXPECT_GE(metrics::rowHeight(text), text.height() + 8);
    }
  }
}

TEST(Metrics, controlsOfOneRowAreOfOneHeight) {
  const QPushButton button(QStringLiteral("Edit…"));
  const QComboBox combo;
  const QLineEdit field;
  EXPECT_EQ(button.sizeHint().height(), combo.sizeHint().height());
  EXPECT_EQ(button.sizeHint().height(), field.sizeHint().height());
  EXPECT_EQ(button.sizeHint().width(), metrics::buttonMinimumWidth);
}

TEST(Metrics, theToolbarsMarginsAreTheStyles) {
  QToolBar bar;
  QWidget& item = *toolbarItem(QStringLiteral("Mail")).release();
  bar.addWidget(&item);
  bar.setMovable(false);
  bar.ensurePolished();
  EXPECT_EQ(bar.iconSize(), QSize(metrics::toolbarIcon, metrics::toolbarIcon));
  EXPECT_EQ(bar.sizeHint().height(), item.sizeHint().height() + 2 * metrics::toolbarMargin);
  EXPECT_GE(item.sizeHint().width(), metrics::toolbarItemMinimumWidth);
}

TEST(Look, theDefaultButtonOfARowIsRightmostAndBare) {
  QDialogButtonBox row(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  row.resize(400, row.sizeHint().height());
  row.ensurePolished();
  row.layout()->activate();
  const QPushButton* ok = row.button(QDialogButtonBox::Ok);
  EXPECT_GT(ok->x(), row.button(QDialogButtonBox::Cancel)->x());
  EXPECT_TRUE(ok->icon().isNull());
}

// Stands for a desktop whose dialogs show a picture on each button.
struct PicturesOnButtons : QProxyStyle {
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override {
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 1 : QProxyStyle::styleHint(hint, option, widget, returned);
  }
};

TEST(Look, buttonsOfFilePanelsStayBareWhereTheDesktopPutsPicturesOnThem) {
  TarvoStyle look(Scheme::light);
  look.setBaseStyle(new PicturesOnButtons);
  EXPECT_EQ(look.styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons), 0);
}

TEST(Look, theWheelDoesNotChangePopUps) { EXPECT_EQ(style().styleHint(QStyle::SH_ComboBox_AllowWheelScrolling), 0); }

TEST(Look, theStylesPaletteIsTheSchemes) {
  EXPECT_EQ(style().standardPalette(), makePalette(Scheme::light));
  EXPECT_EQ(TarvoStyle(Scheme::dark).standardPalette(), makePalette(Scheme::dark));
}

TEST(ScrollBar, theSliderRunsFromEndToEndWithoutArrows) {
  QScrollBar bar(Qt::Vertical);
  bar.setRange(0, 1000);
  bar.setPageStep(10);
  bar.resize(metrics::scrollBarExtent, 200);
  QStyleOptionSlider option;
  option.initFrom(&bar);
  option.orientation = Qt::Vertical;
  option.minimum = 0, option.maximum = 1000, option.pageStep = 10, option.upsideDown = false;
  const auto part = [&](QStyle::SubControl sub) { return style().subControlRect(QStyle::CC_ScrollBar, &option, sub); };
  for (const int position : {0, 500, 1000}) {
    option.sliderPosition = position;
    const QRect slider = part(QStyle::SC_ScrollBarSlider);
    EXPECT_GE(slider.height(), 24);
    EXPECT_EQ(part(QStyle::SC_ScrollBarSubPage).height() + slider.height() + part(QStyle::SC_ScrollBarAddPage).height(),
              200);
    EXPECT_EQ(slider.top() == 0, position == 0);
    EXPECT_EQ(slider.bottom() == 199, position == 1000);
  }
  EXPECT_TRUE(part(QStyle::SC_ScrollBarAddLine).isEmpty());
  EXPECT_TRUE(part(QStyle::SC_ScrollBarSubLine).isEmpty());
}

}  // namespace
}  // namespace tarvo
