// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/iconed_delegate.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QStandardItemModel>

#include "tests/qt/picture.h"

namespace tarvo {
namespace {

TEST(IconedDelegate, iconAndTextStandWhereTheCellSays) {
  const IconedPlaces with = iconedPlaces(QRect(10, 5, 200, 16), true);
  EXPECT_EQ(with.icon, QRect(13, 5, 16, 16));
  EXPECT_EQ(with.text, QRect(32, 5, 178, 16));
  const IconedPlaces without = iconedPlaces(QRect(10, 5, 200, 16), false);
  EXPECT_EQ(without.text, QRect(13, 5, 197, 16));
}

TEST(IconedDelegate, aHigherRowHasItsIconInTheMiddleAndItsTextOverTheWholeHeight) {
  const IconedPlaces places = iconedPlaces(QRect(0, 100, 200, 28), true);
  EXPECT_EQ(places.icon, QRect(3, 106, 16, 16));
  EXPECT_EQ(places.text, QRect(22, 100, 178, 28));
}

TEST(IconedDelegate, paintsAnIconOfAnySizeInItsPlaceOnly) {
  for (const int size : {16, 32}) {
    QPixmap red(size, size);
    red.fill(Qt::red);
    QStandardItemModel model(1, 1);
    model.setItem(0, 0, new QStandardItem(QIcon(red), QString()));
    QImage image(200, 28, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = image.rect();
    option.state = QStyle::State_Enabled;
    IconedDelegate().paint(&painter, option, model.index(0, 0));
    painter.end();
    EXPECT_EQ(test::pixels(image, test::isRed), 16 * 16) << size;
    EXPECT_EQ(test::pixels(image.copy(3, 6, 16, 16), test::isRed), 16 * 16) << size;
  }
}

}  // namespace
}  // namespace tarvo
