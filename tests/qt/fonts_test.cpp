// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/fonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontMetrics>
#include <QRawFont>

namespace tarvo {
namespace {

QRawFont firstFont(const QFont& font) { return QRawFont::fromFont(QFont(font.families().value(0))); }

TEST(Fonts, theFirstFamilyHoldsTheLettersOfTheLanguage) {
  EXPECT_TRUE(firstFont(applicationFont("en")).supportsCharacter(QChar(u'A')));
  if (QFontDatabase::families(QFontDatabase::Japanese).isEmpty()) GTEST_SKIP() << "no Japanese font is installed";
  for (const QChar letter : {QChar(u'あ'), QChar(u'ア'), QChar(u'訳'), QChar(u'A'), QChar(u'…')})
    EXPECT_TRUE(firstFont(applicationFont("ja")).supportsCharacter(letter)) << int{letter.unicode()};
}

TEST(Fonts, theFurtherFamiliesServeTheOtherLanguage) {
  const QStringList english = applicationFont("en").families(), japanese = applicationFont("ja").families();
  ASSERT_EQ(english.size(), 2);
  EXPECT_EQ(japanese, QStringList({english[1], english[0]}));
}

TEST(Fonts, anUnknownLanguageIsShownLikeEnglish) {
  EXPECT_EQ(applicationFont("fi").families(), applicationFont("en").families());
  EXPECT_EQ(applicationFont("").families(), applicationFont("en").families());
  EXPECT_EQ(applicationFont("ja-JP").families(), applicationFont("ja").families());
}

TEST(Fonts, textIsAtLeastTenPointsAndGrowsWithTheScale) {
  const double plain = applicationFont("en").pointSizeF();
  EXPECT_GE(plain, 10);
  const struct {
    const char* percent;
    double factor;
  } scales[] = {{"200", 2}, {"150", 1.5}, {"50", 0.5}, {"10", 1}, {"1000", 1}, {"big", 1}, {"", 1}, {"-200", 1}};
  for (const auto& [percent, factor] : scales) {
    qputenv("TARVO_FONT_SCALE", percent);
    EXPECT_DOUBLE_EQ(applicationFont("en").pointSizeF(), plain * factor) << percent;
  }
  qunsetenv("TARVO_FONT_SCALE");
}

TEST(Fonts, aHeadingIsBoldAndOfTheSameSize) {
  const QFont base = applicationFont("en"), heading = headingFont(base);
  EXPECT_TRUE(heading.bold());
  EXPECT_EQ(heading.pointSizeF(), base.pointSizeF());
  EXPECT_EQ(heading.families(), base.families());
}

}  // namespace
}  // namespace tarvo
