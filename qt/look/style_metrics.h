// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QSize>
#include <QStyle>
#include <optional>

// What the style answers about sizes, places and habits.
// Duty: the answers that differ from the base style's; nothing means that the base style's holds. Not: drawing.
// Units: device-independent pixels.
namespace tarvo {

std::optional<int> styleMetric(QStyle::PixelMetric metric, const QStyleOption* option, const QWidget* widget);
std::optional<int> hintValue(QStyle::StyleHint hint);
std::optional<QSize> sizeOf(QStyle::ContentsType type, const QStyleOption* option, QSize contents,
                            const QWidget* widget);
std::optional<QRect> elementRect(QStyle::SubElement element, const QStyleOption* option, const QStyle& style);
std::optional<QRect> partRect(QStyle::ComplexControl control, const QStyleOptionComplex* option,
                              QStyle::SubControl part);

}  // namespace tarvo
