// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/palette.h"

#include <QColor>
#include <QGuiApplication>

namespace tarvo {
namespace {

struct Shade {
  QPalette::ColorRole role;
  QRgb light, dark;
};

constexpr Shade shades[] = {
    {QPalette::Window, 0xfff4f5f7, 0xff1e2126},      {QPalette::WindowText, 0xff1d2430, 0xffe6e9ef},
    {QPalette::Base, 0xffffffff, 0xff262a31},        {QPalette::AlternateBase, 0xffffffff, 0xff262a31},
    {QPalette::Text, 0xff1d2430, 0xffe6e9ef},        {QPalette::PlaceholderText, 0xff586170, 0xffa9b1be},
    {QPalette::Button, 0xffffffff, 0xff343941},      {QPalette::ButtonText, 0xff1d2430, 0xffe6e9ef},
    {QPalette::BrightText, 0xffffffff, 0xffffffff},  {QPalette::Light, 0xffffffff, 0xff424852},
    {QPalette::Midlight, 0xffe6e9ee, 0xff2d3239},    {QPalette::Mid, 0xffcdd2da, 0xff454b55},
    {QPalette::Dark, 0xff7d8593, 0xff8b93a1},        {QPalette::Shadow, 0xff1d2430, 0xff000000},
    {QPalette::Highlight, 0xff1c4fc4, 0xff8cb4ff},   {QPalette::HighlightedText, 0xffffffff, 0xff10182a},
    {QPalette::Link, 0xff1c4fc4, 0xff8cb4ff},        {QPalette::LinkVisited, 0xff6b3fb0, 0xffc3a6ff},
    {QPalette::ToolTipBase, 0xffffffff, 0xff343941}, {QPalette::ToolTipText, 0xff1d2430, 0xffe6e9ef},
};

constexpr Shade disabledShades[] = {
    {QPalette::WindowText, 0xff7d8593, 0xff8b93a1},
    {QPalette::Text, 0xff7d8593, 0xff8b93a1},
    {QPalette::ButtonText, 0xff7d8593, 0xff8b93a1},
    {QPalette::PlaceholderText, 0xff7d8593, 0xff8b93a1},
    {QPalette::Base, 0xfff9fafb, 0xff22262c},
    {QPalette::Button, 0xfff9fafb, 0xff282c33},
    {QPalette::Dark, 0xffb4bac4, 0xff5b626e},
    {QPalette::Highlight, 0xffdde1e7, 0xff414751},
    {QPalette::HighlightedText, 0xff5f6877, 0xffb3bac6},
};

}  // namespace

QPalette makePalette(Scheme scheme) {
  const auto shade = [scheme](const Shade& s) { return QColor(scheme == Scheme::dark ? s.dark : s.light); };
  QPalette palette;
  for (const Shade& s : shades) palette.setColor(s.role, shade(s));
  for (const Shade& s : disabledShades) palette.setColor(QPalette::Disabled, s.role, shade(s));
  return palette;
}

Scheme schemeFromEnvironment() {
  const QByteArray wanted = qgetenv("TARVO_SCHEME");
  if (wanted == "light") return Scheme::light;
  if (wanted == "dark") return Scheme::dark;
  return QGuiApplication::palette().color(QPalette::Window).lightness() < 128 ? Scheme::dark : Scheme::light;
}

}  // namespace tarvo
