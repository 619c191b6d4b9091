// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionMenuItem>
#include <QTableWidget>
#include <QToolButton>

#include "qt/look/metrics.h"
#include "qt/look/palette.h"
#include "qt/look/plate.h"
#include "qt/look/segment.h"
#include "tests/qt/picture.h"

namespace tarvo {
namespace {

using test::picture;
using test::pixels;

TEST(Plate, borderIsOneSharpLineAtEveryScale) {
  for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
    QImage image(QSizeF(40 * scale, 20 * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    drawPlate(painter, QRectF(3, 3, 34, 14), 4, Qt::green, Qt::red);
    painter.end();
    const int middle = image.height() / 2, line = static_cast<int>(scale);
    int red = 0, other = 0;
    for (int x = 0; x < image.width() / 2; ++x) {
      const QColor color = image.pixelColor(x, middle);
      red += color == QColor(Qt::red) ? 1 : 0;
      other += color != QColor(Qt::red) && color != QColor(Qt::green) && color != QColor(Qt::white) ? 1 : 0;
    }
    EXPECT_EQ(red, line) << "at scale " << scale;
    EXPECT_EQ(other, 0) << "half-covered pixels at scale " << scale;
  }
}

TEST(Segments, placesFollowFromIndexAndCount) {
  EXPECT_EQ(segmentPlaceOf(0, 1), SegmentPlace::only);
  EXPECT_EQ(segmentPlaceOf(0, 3), SegmentPlace::first);
  EXPECT_EQ(segmentPlaceOf(1, 3), SegmentPlace::middle);
  EXPECT_EQ(segmentPlaceOf(2, 3), SegmentPlace::last);
  const QToolButton button;
  EXPECT_FALSE(segmentPlace(&button).has_value());
  EXPECT_FALSE(segmentPlace(nullptr).has_value());
}

TEST(Segments, onlyTheEndsOfAControlAreRound) {
  QToolButton piece;
  const QColor track = makePalette(Scheme::light).color(QPalette::Mid);
  const auto cornersAreSquare = [&](SegmentPlace place) {
    makeSegment(piece, place);
    const QImage image = picture(piece, {60, 44});
    return std::pair(image.pixelColor(0, 0) == track, image.pixelColor(59, 0) == track);
  };
  EXPECT_EQ(cornersAreSquare(SegmentPlace::only), std::pair(false, false));
  EXPECT_EQ(cornersAreSquare(SegmentPlace::first), std::pair(false, true));
  EXPECT_EQ(cornersAreSquare(SegmentPlace::middle), std::pair(true, true));
  EXPECT_EQ(cornersAreSquare(SegmentPlace::last), std::pair(true, false));
}

TEST(Segments, theChosenOneCarriesTheAccent) {
  QToolButton piece;
  makeSegment(piece, SegmentPlace::middle);
  const QColor accent = makePalette(Scheme::light).color(QPalette::Highlight);
  const auto accented = [&] { return pixels(picture(piece, {60, 44}), [&](const QColor& c) { return c == accent; }); };
  EXPECT_EQ(accented(), 0);
  piece.setChecked(true);
  EXPECT_GT(accented(), 100);
}

TEST(CheckBox, isFilledWithTheAccentWhenOn) {
  QCheckBox box;
  const QColor accent = makePalette(Scheme::light).color(QPalette::Highlight);
  const auto accented = [&] { return pixels(picture(box, {20, 20}), [&](const QColor& c) { return c == accent; }); };
  EXPECT_EQ(accented(), 0);
  box.setChecked(true);
  EXPECT_GT(accented(), 100);
}

TEST(PushButton, theDefaultOneIsFilledWithTheAccentUnlessDisabled) {
  QPushButton button(QStringLiteral("OK"));
  const QColor accent = makePalette(Scheme::light).color(QPalette::Highlight);
  const auto plate = [&] { return picture(button, {80, 28}).pixelColor(6, 14); };
  EXPECT_NE(plate(), accent);
  button.setDefault(true);
  EXPECT_EQ(plate(), accent);
  button.setEnabled(false);
  EXPECT_NE(plate(), accent);
}

// A row of an open pop-up, as the toolkit asks for it.
QImage popUpRow(QComboBox& combo, const std::function<void(QStyleOptionMenuItem&)>& set) {
  QStyleOptionMenuItem row;
  row.initFrom(&combo);
  row.rect = QRect(0, 0, 200, 26);
  row.menuItemType = QStyleOptionMenuItem::Normal;
  row.checkType = QStyleOptionMenuItem::NonExclusive;
  set(row);
  QImage image(row.rect.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  combo.style()->drawControl(QStyle::CE_MenuItem, &row, &painter, &combo);
  return image;
}

TEST(PopUp, theCurrentItemIsMarkedWhileAnotherIsPointedAt) {
  QComboBox combo;
  const QColor accent = makePalette(Scheme::light).color(QPalette::Highlight);
  const auto accented = [&](bool isCurrent, QStyle::State pointedAt) {
    const QImage image = popUpRow(combo, [&](QStyleOptionMenuItem& row) {
      row.checked = isCurrent;
      row.state = QStyle::State_Enabled | pointedAt;
    });
    return pixels(image, [&](const QColor& c) { return c == accent; });
  };
  for (const QStyle::State pointedAt : {QStyle::State_None, QStyle::State_Selected}) {
    EXPECT_GT(accented(true, pointedAt), 50);
    EXPECT_EQ(accented(false, pointedAt), 0);
  }
}

TEST(PopUp, aDividerIsALineWithoutItsTitle) {
  QComboBox combo;
  const auto divider = [&](const QString& title) {
    return popUpRow(combo, [&](QStyleOptionMenuItem& row) {
      row.menuItemType = QStyleOptionMenuItem::Separator;
      row.state = QStyle::State_None;
      row.text = title;
    });
  };
  EXPECT_EQ(divider(QStringLiteral("----------")), divider(QString()));
  EXPECT_GT(pixels(divider(QString()), [](const QColor& c) { return c != QColor(Qt::white); }), 100);
}

TEST(Table, theTintOfTheChosenRowRunsOverAllColumns) {
  QTableWidget table(3, 3);
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  table.setShowGrid(false);
  table.verticalHeader()->hide();
  table.horizontalHeader()->hide();
  const QImage plain = picture(table, {340, 120});
  table.selectRow(1);
  const QImage chosen = picture(table, {340, 120});
  const int top = metrics::listPadding + table.rowViewportPosition(1);
  const QColor plate = chosen.pixelColor(150, top + table.rowHeight(1) / 2);
  EXPECT_NE(plate, plain.pixelColor(150, top + table.rowHeight(1) / 2));
  for (const int column : {1, 2}) {
    const int edge = metrics::listPadding + table.columnViewportPosition(column);
    for (const int x : {edge - 1, edge}) EXPECT_EQ(chosen.pixelColor(x, top), plate) << "a gap at x = " << x;
  }
  EXPECT_EQ(table.rowHeight(0), metrics::rowHeight(table.fontMetrics()));
}

}  // namespace
}  // namespace tarvo
