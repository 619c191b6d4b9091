// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/palette.h"

#include <gtest/gtest.h>

#include <QColor>
#include <algorithm>
#include <cmath>

namespace tarvo {
namespace {

double linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b) {
  const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
  return (light + 0.05) / (dark + 0.05);
}

struct Pair {
  QPalette::ColorGroup group;
  QPalette::ColorRole ink, surface;
  double least;
};

constexpr Pair pairs[] = {
    {QPalette::Active, QPalette::WindowText, QPalette::Window, 7},
    {QPalette::Active, QPalette::WindowText, QPalette::Midlight, 7},
    {QPalette::Active, QPalette::Text, QPalette::Base, 7},
    {QPalette::Active, QPalette::Text, QPalette::AlternateBase, 7},
    {QPalette::Active, QPalette::Text, QPalette::ToolTipBase, 7},
    {QPalette::Active, QPalette::ButtonText, QPalette::Button, 7},
    {QPalette::Active, QPalette::ButtonText, QPalette::Midlight, 7},
    {QPalette::Active, QPalette::ToolTipText, QPalette::ToolTipBase, 7},
    {QPalette::Active, QPalette::HighlightedText, QPalette::Highlight, 7},
    {QPalette::Active, QPalette::PlaceholderText, QPalette::Window, 4.5},
    {QPalette::Active, QPalette::PlaceholderText, QPalette::Base, 4.5},
    {QPalette::Active, QPalette::PlaceholderText, QPalette::Button, 4.5},
    {QPalette::Active, QPalette::Link, QPalette::Window, 4.5},
    {QPalette::Active, QPalette::LinkVisited, QPalette::Window, 4.5},
    {QPalette::Active, QPalette::Highlight, QPalette::Window, 3},
    {QPalette::Active, QPalette::Highlight, QPalette::Base, 3},
    {QPalette::Active, QPalette::Dark, QPalette::Window, 3},
    {QPalette::Active, QPalette::Dark, QPalette::Base, 3},
    {QPalette::Disabled, QPalette::WindowText, QPalette::Window, 3},
    {QPalette::Disabled, QPalette::Text, QPalette::Base, 3},
    {QPalette::Disabled, QPalette::Text, QPalette::ToolTipBase, 3},
    {QPalette::Disabled, QPalette::ButtonText, QPalette::Button, 3},
    {QPalette::Disabled, QPalette::HighlightedText, QPalette::Highlight, 3},
};

class PaletteContrast : public testing::TestWithParam<Scheme> {};

TEST_P(PaletteContrast, everyInkCanBeReadOnItsSurfaces) {
  const QPalette palette = makePalette(GetParam());
  for (const Pair& pair : pairs)
    EXPECT_GE(contrast(palette.color(pair.group, pair.ink), palette.color(pair.group, pair.surface)), pair.least)
        << "role " << pair.ink << " on role " << pair.surface << " in group " << pair.group;
}

TEST_P(PaletteContrast, textOnATintedRowCanBeRead) {
  const QPalette palette = makePalette(GetParam());
  const QColor base = palette.color(QPalette::Base), accent = palette.color(QPalette::Highlight);
  const auto tint = [](int from, int to) { return from + (to - from) * 16 / 100; };
  const QColor row(tint(base.red(), accent.red()), tint(base.green(), accent.green()),
                   tint(base.blue(), accent.blue()));
  EXPECT_GE(contrast(palette.color(QPalette::Text), row), 7);
}

INSTANTIATE_TEST_SUITE_P(Schemes, PaletteContrast, testing::Values(Scheme::light, Scheme::dark),
                         [](const auto& scheme) { return scheme.param == Scheme::dark ? "dark" : "light"; });

TEST(Palette, theDarkSchemeIsDarkAndTheLightOneLight) {
  EXPECT_LT(luminance(makePalette(Scheme::dark).color(QPalette::Window)), 0.1);
  EXPECT_GT(luminance(makePalette(Scheme::light).color(QPalette::Window)), 0.8);
}

TEST(Palette, theEnvironmentChoosesTheScheme) {
  qputenv("TARVO_SCHEME", "dark");
  EXPECT_EQ(schemeFromEnvironment(), Scheme::dark);
  qputenv("TARVO_SCHEME", "light");
  EXPECT_EQ(schemeFromEnvironment(), Scheme::light);
  qputenv("TARVO_SCHEME", "purple");
  EXPECT_EQ(schemeFromEnvironment(), Scheme::light) << "an unknown scheme counts as none; the palette here is light";
  qunsetenv("TARVO_SCHEME");
  EXPECT_EQ(schemeFromEnvironment(), Scheme::light);
}

}  // namespace
}  // namespace tarvo
