// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <qnamespace.h>

class QPainter;
class QStyleOption;
class QWidget;

// One drawing per element.
// Duty: paint what the option says, with the option's palette. Each returns false when it is not its case, so that the
// style's base draws. Not: sizes and places of parts, which the style answers (style_metrics.h).
namespace tarvo {

using Draw = bool (*)(QPainter& painter, const QStyleOption& option, const QWidget* widget);

// draw_buttons.cpp
bool drawPushButtonPlate(QPainter&, const QStyleOption&, const QWidget*);
bool drawPushButtonLabel(QPainter&, const QStyleOption&, const QWidget*);
bool drawToolButton(QPainter&, const QStyleOption&, const QWidget*);  // toolbar items and segments; false for others
bool drawToolButtonPlate(QPainter&, const QStyleOption&, const QWidget*);
bool drawCheckMark(QPainter&, const QStyleOption&, const QWidget*);
bool drawArrow(QPainter&, const QStyleOption&, Qt::ArrowType);
bool drawSortMark(QPainter&, const QStyleOption&, const QWidget*);
bool drawFocusFrame(QPainter&, const QStyleOption&, const QWidget*);

// draw_toolbar.cpp
bool drawToolbar(QPainter&, const QStyleOption&, const QWidget*);
bool drawToolbarItem(QPainter&, const QStyleOption&, const QWidget*);

// draw_segments.cpp
bool drawSegment(QPainter&, const QStyleOption&, const QWidget*);

// draw_combo.cpp
bool drawCombo(QPainter&, const QStyleOption&, const QWidget*);
bool drawComboLabel(QPainter&, const QStyleOption&, const QWidget*);

// draw_fields.cpp
bool drawField(QPainter&, const QStyleOption&, const QWidget*);
bool drawFrame(QPainter&, const QStyleOption&, const QWidget*);
bool drawLine(QPainter&, const QStyleOption&, const QWidget*);
bool drawToolTip(QPainter&, const QStyleOption&, const QWidget*);
bool drawNothing(QPainter&, const QStyleOption&, const QWidget*);

// draw_table.cpp
bool drawCellBackground(QPainter&, const QStyleOption&, const QWidget*);
bool drawDropMark(QPainter&, const QStyleOption&, const QWidget*);
bool drawHeaderSection(QPainter&, const QStyleOption&, const QWidget*);
bool drawHeaderLabel(QPainter&, const QStyleOption&, const QWidget*);
bool drawHeaderRest(QPainter&, const QStyleOption&, const QWidget*);

// draw_scroll_bar.cpp
bool drawScrollBar(QPainter&, const QStyleOption&, const QWidget*);

// draw_tabs.cpp
bool drawTab(QPainter&, const QStyleOption&, const QWidget*);
bool drawTabLabel(QPainter&, const QStyleOption&, const QWidget*);
bool drawTabFoot(QPainter&, const QStyleOption&, const QWidget*);

// draw_menu.cpp
bool drawMenuPlate(QPainter&, const QStyleOption&, const QWidget*);
bool drawMenuItem(QPainter&, const QStyleOption&, const QWidget*);
bool drawMenuBarItem(QPainter&, const QStyleOption&, const QWidget*);
bool drawMenuBar(QPainter&, const QStyleOption&, const QWidget*);

}  // namespace tarvo
