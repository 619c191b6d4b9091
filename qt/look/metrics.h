// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetrics>
#include <algorithm>

// Sizes of the window, in device-independent pixels on a grid of four.
// Duty: one place for margins, gaps and sizes, shared by the style and by the panes. Not: pane sizes.
// Heights that hold text are functions of its font, so that nothing is clipped when the text is enlarged.
namespace tarvo::metrics {

inline constexpr int grid = 4;

// Gaps, from the nearest relation to the farthest.
inline constexpr int labelGap = 8;     // label to its control; button to button
inline constexpr int rowGap = 8;       // row to row of a form
inline constexpr int sectionGap = 20;  // last row to the next heading
inline constexpr int paneMargin = 20;  // edge of a pane, sheet or panel to its contents

// Controls.
inline constexpr int minimumControlHeight = 28;  // buttons, pop-ups, fields, text segments
inline constexpr int buttonMinimumWidth = 80;
inline constexpr int buttonPadding = 16;  // edge to text
inline constexpr int fieldPadding = 8;    // edge to text in fields and pop-ups
inline constexpr int popUpArrowWidth = 28;
inline constexpr int popUpIcon = 16;
inline constexpr int popUpWidth = 220;  // width of pop-ups in a form, so that their edges line up
inline constexpr int fieldWidth = 280;  // name fields of the sheets
inline constexpr int minimumCheckBoxSize = 16;
inline constexpr int checkBoxGap = 8;
inline constexpr int scrollBarExtent = 12;

// Segments with an icon.
inline constexpr int segmentIcon = 32;
inline constexpr int segmentWidth = 56;
inline constexpr int segmentHeight = 44;

// Toolbar.
inline constexpr int toolbarIcon = 32;
inline constexpr int toolbarItemMinimumWidth = 76;
inline constexpr int toolbarMargin = 8;
inline constexpr int toolbarItemGap = 4;

// Lists.
inline constexpr int cellIcon = 16;
inline constexpr int minimumRowHeight = 28;
inline constexpr int listPadding = 4;  // frame of a list to its rows

// Corner radii.
inline constexpr double controlRadius = 6;
inline constexpr double cardRadius = 8;  // lists, toolbar items
inline constexpr double checkRadius = 4;

constexpr int onGrid(int length) { return (length + grid - 1) / grid * grid; }

inline int controlHeight(const QFontMetrics& font) { return std::max(minimumControlHeight, onGrid(font.height() + 8)); }
inline int checkBoxSize(const QFontMetrics& font) { return std::max(minimumCheckBoxSize, onGrid(font.ascent() - 2)); }
inline int rowHeight(const QFontMetrics& font) { return std::max(minimumRowHeight, onGrid(font.height() + 8)); }

}  // namespace tarvo::metrics
