// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/icons.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>
#include <string>

#include "qt/look/panel_icons.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

// Three stripes: neutral ink, blue ink, a colour of its own.
const std::string stripes = R"(<svg xmlns="http://www.w3.org/2000/svg" width="30" height="30" viewBox="0 0 30 30">)"
                            R"(<path d="M0 0h10v30H0z" fill="#3A4250"/><path d="M10 0h10v30H10z" fill="#2f6fed"/>)"
                            R"(<path d="M20 0h10v30H20z" fill="#ffffff"/></svg>)";

class Icons : public testing::Test {
 protected:
  QString drawing(const std::string& text) {
    folder_.write("MG.svg", text);
    return QString::fromStdString(folder_ / "MG.svg");
  }
  test::TemporaryFolder folder_;
};

QImage image(const QIcon& icon, int side, double scale = 1, QIcon::Mode mode = QIcon::Normal) {
  return icon.pixmap(QSize(side, side), scale, mode).toImage();
}

TEST_F(Icons, theLightSchemeShowsTheDrawingAsItIs) {
  const QImage picture = image(icon(drawing(stripes), Scheme::light), 30);
  EXPECT_EQ(picture.pixelColor(5, 15), QColor(0x3a, 0x42, 0x50));
  EXPECT_EQ(picture.pixelColor(15, 15), QColor(0x2f, 0x6f, 0xed));
  EXPECT_EQ(picture.pixelColor(25, 15), QColor(Qt::white));
}

TEST_F(Icons, theDarkSchemeLightensTheTwoInksAndNothingElse) {
  const QImage picture = image(icon(drawing(stripes), Scheme::dark), 30);
  EXPECT_EQ(picture.pixelColor(5, 15), QColor(0xd5, 0xda, 0xe3));
  EXPECT_EQ(picture.pixelColor(15, 15), QColor(0x5b, 0x93, 0xff));
  EXPECT_EQ(picture.pixelColor(25, 15), QColor(Qt::white));
}

TEST_F(Icons, edgesAreCrispAtEverySizeAndScale) {
  const QIcon stripe = icon(drawing(stripes), Scheme::light);
  for (const auto& [side, scale] : {std::pair{15, 2.0}, {30, 1.0}, {30, 2.0}, {60, 1.5}, {120, 1.0}}) {
    const QImage picture = image(stripe, side, scale);
    const int pixels = static_cast<int>(side * scale), third = pixels / 3;
    ASSERT_EQ(picture.size(), QSize(pixels, pixels));
    EXPECT_EQ(picture.pixelColor(third - 1, pixels / 2), QColor(0x3a, 0x42, 0x50)) << side << " at " << scale;
    EXPECT_EQ(picture.pixelColor(third, pixels / 2), QColor(0x2f, 0x6f, 0xed)) << side << " at " << scale;
  }
}

TEST_F(Icons, aDrawingKeepsItsProportionsInTheMiddle) {
  const QString path = drawing(R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="10" viewBox="0 0 20 10">)"
                               R"(<path d="M0 0h20v10H0z" fill="#ff0000"/></svg>)");
  const QImage picture = image(icon(path, Scheme::light), 20);
  EXPECT_EQ(picture.pixelColor(10, 10), QColor(Qt::red));
  EXPECT_EQ(picture.pixelColor(10, 5), QColor(Qt::red));
  EXPECT_EQ(picture.pixelColor(10, 4).alpha(), 0);
  EXPECT_EQ(picture.pixelColor(10, 15).alpha(), 0);
}

TEST_F(Icons, aDisabledIconIsFaint) {
  const QIcon stripe = icon(drawing(stripes), Scheme::light);
  EXPECT_NEAR(image(stripe, 30, 1, QIcon::Disabled).pixelColor(5, 15).alpha(), 102, 2);
}

TEST_F(Icons, theFileIsReadWhenTheIconIsPaintedAndOnlyOnce) {
  const QIcon before = icon(drawing("not a drawing yet"), Scheme::light);
  const QIcon copy = before;  // NOLINT(performance-unnecessary-copy-initialization): what a copy shows is the question
  drawing(stripes);
  EXPECT_EQ(image(before, 30).pixelColor(5, 15), QColor(0x3a, 0x42, 0x50));
  drawing("spoilt");
  EXPECT_EQ(image(copy, 60).pixelColor(5, 15), QColor(0x3a, 0x42, 0x50));
}

TEST_F(Icons, aMissingFileGivesANullIcon) {
  EXPECT_TRUE(icon(QString::fromStdString(folder_ / "none.svg"), Scheme::light).isNull());
}

TEST_F(Icons, anUnreadableDrawingPaintsNothing) {
  for (const std::string text : {"", "<svg", "plain text"}) {
    const QIcon nothing = icon(drawing(text), Scheme::dark);
    EXPECT_FALSE(nothing.isNull());
    EXPECT_EQ(image(nothing, 16).pixelColor(8, 8).alpha(), 0) << text;
  }
}

TEST(PanelIcons, areDrawnInTheInksOfTheScheme) {
  for (const auto& [scheme, ink] :
       {std::pair{Scheme::light, QColor(0x3a, 0x42, 0x50)}, {Scheme::dark, QColor(0xd5, 0xda, 0xe3)}}) {
    for (const auto picture : {QStyle::SP_ArrowBack, QStyle::SP_FileDialogToParent, QStyle::SP_FileDialogNewFolder,
                               QStyle::SP_DirIcon, QStyle::SP_FileIcon, QStyle::SP_LineEditClearButton}) {
      const QImage shown = image(panelIcon(picture, scheme), 64);
      int inked = 0;
      for (int i = 0; i < 64 * 64; ++i) inked += shown.pixelColor(i % 64, i / 64) == ink ? 1 : 0;
      EXPECT_GT(inked, 64) << picture;
    }
  }
  EXPECT_TRUE(panelIcon(QStyle::SP_MessageBoxWarning, Scheme::light).isNull());
}

}  // namespace
}  // namespace tarvo
