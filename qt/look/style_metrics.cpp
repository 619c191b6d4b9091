// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QAbstractScrollArea>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QStyleOptionComboBox>
#include <QStyleOptionToolButton>

#include "qt/look/metrics.h"
#include "qt/look/segment.h"
#include "qt/look/tarvo_style.h"

// What the style answers about sizes, places and habits where it differs from its base.
namespace tarvo {
namespace {

constexpr std::pair<QStyle::PixelMetric, int> fixedMetrics[] = {
    {QStyle::PM_CheckBoxLabelSpacing, metrics::checkBoxGap},
    {QStyle::PM_HeaderMargin, metrics::grid},
    {QStyle::PM_LayoutHorizontalSpacing, metrics::labelGap},
    {QStyle::PM_LayoutVerticalSpacing, metrics::rowGap},
    {QStyle::PM_ListViewIconSize, metrics::cellIcon},
    {QStyle::PM_ScrollBarExtent, metrics::scrollBarExtent},
    {QStyle::PM_TabBarBaseHeight, 0},
    {QStyle::PM_TabBarBaseOverlap, 0},
    {QStyle::PM_TabBarTabHSpace, 32},
    {QStyle::PM_TabBarTabShiftVertical, 0},
    {QStyle::PM_TabBarTabVSpace, 16},
    {QStyle::PM_ToolBarFrameWidth, 0},
    {QStyle::PM_ToolBarHandleExtent, 0},
    {QStyle::PM_ToolBarIconSize, metrics::toolbarIcon},
    {QStyle::PM_ToolBarItemMargin, metrics::toolbarMargin},
    {QStyle::PM_ToolBarItemSpacing, metrics::toolbarItemGap},
};

constexpr std::pair<QStyle::StyleHint, int> fixedHints[] = {
    {QStyle::SH_ComboBox_AllowWheelScrolling, 0},
    {QStyle::SH_ComboBox_Popup, 1},
    {QStyle::SH_DialogButtonBox_ButtonsHaveIcons, 0},
    {QStyle::SH_DialogButtonLayout, QDialogButtonBox::GnomeLayout},  // the default button rightmost
    {QStyle::SH_EtchDisabledText, 0},
    {QStyle::SH_FormLayoutFieldGrowthPolicy, QFormLayout::FieldsStayAtSizeHint},
    {QStyle::SH_FormLayoutLabelAlignment, Qt::AlignRight},
    {QStyle::SH_Widget_Animation_Duration, 0},
};

template <class Table, class Key>
const int* answer(const Table& table, Key key) {
  const auto known = std::ranges::find(table, key, &std::pair<Key, int>::first);
  return known == std::end(table) ? nullptr : &known->second;
}

QSize segmentSize(const QStyleOptionToolButton& piece, int text) {
  if (piece.icon.isNull()) return {text + 2 * metrics::buttonPadding, metrics::controlHeight(piece.fontMetrics)};
  return (piece.iconSize + 3 * QSize(metrics::grid, metrics::grid))
      .expandedTo({metrics::segmentWidth, metrics::segmentHeight});
}

QSize toolbarItemSize(const QStyleOptionToolButton& item, int text) {
  return {qMax(metrics::toolbarItemMinimumWidth, text + 4 * metrics::grid),
          metrics::onGrid(6 + item.iconSize.height() + 2 + item.fontMetrics.height() + metrics::grid)};
}

QSize comboSize(const QFontMetrics& font, QSize contents) {
  const int slack = font.height() / 4;  // the contents are measured by their ink, drawn by their advance
  return {metrics::fieldPadding + 2 + contents.width() + slack + metrics::popUpArrowWidth,
          metrics::controlHeight(font)};
}

QSize pushButtonSize(const QStyleOptionButton& button, QSize contents) {
  const int height = metrics::controlHeight(button.fontMetrics);
  if (button.text.isEmpty()) return {qMax(contents.width() + 3 * metrics::grid, height), height};
  return {qMax(metrics::buttonMinimumWidth, contents.width() + 2 * metrics::buttonPadding), height};
}

}  // namespace

int TarvoStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const QFontMetrics font = widget ? widget->fontMetrics() : option ? option->fontMetrics : QFontMetrics(QFont());
  switch (metric) {
    case PM_DefaultFrameWidth: return qobject_cast<const QAbstractScrollArea*>(widget) ? metrics::listPadding : 1;
    case PM_HeaderDefaultSectionSizeVertical: return metrics::rowHeight(font);
    case PM_IndicatorWidth:
    case PM_IndicatorHeight: return metrics::checkBoxSize(font);
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin: return widget && widget->isWindow() ? metrics::paneMargin : metrics::rowGap;
    default: break;
  }
  const int* fixed = answer(fixedMetrics, metric);
  return fixed ? *fixed : QProxyStyle::pixelMetric(metric, option, widget);
}

int TarvoStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returned) const {
  if (hint == SH_ScrollBar_Transient && option && !widget) return 1;  // see subControlRect
  const int* fixed = answer(fixedHints, hint);
  return fixed ? *fixed : QProxyStyle::styleHint(hint, option, widget, returned);
}

QSize TarvoStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const {
  if (const auto* push = qstyleoption_cast<const QStyleOptionButton*>(option); push && type == CT_PushButton)
    return pushButtonSize(*push, contents);
  if (const auto* tool = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
    const int text = tool->fontMetrics.size(Qt::TextShowMnemonic, tool->text).width();
    if (segmentPlace(widget)) return segmentSize(*tool, text);
    if (tool->toolButtonStyle == Qt::ToolButtonTextUnderIcon) return toolbarItemSize(*tool, text);
  }
  if (option && type == CT_ComboBox) return comboSize(option->fontMetrics, contents);
  if (option && type == CT_LineEdit) return {contents.width(), metrics::controlHeight(option->fontMetrics)};
  QSize base = QProxyStyle::sizeFromContents(type, option, contents, widget);
  // The column of the ticks grows with the text, the room that the base asks for does not.
  if (option && type == CT_MenuItem) base.rwidth() += metrics::checkBoxSize(option->fontMetrics);
  return base;
}

QRect TarvoStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  // A page of a tab view reaches to the edges of the view: the pane has margins of its own.
  if (element == SE_TabWidgetTabContents) return subElementRect(SE_TabWidgetTabPane, option).adjusted(0, 1, 0, 0);
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  if (element != SE_LineEditContents || !frame || frame->lineWidth <= 0)
    return QProxyStyle::subElementRect(element, option, widget);
  const int inset = metrics::fieldPadding - 2;  // the field adds two
  return option->rect.adjusted(inset, 2, -inset, -2);
}

QRect TarvoStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
  // The base leaves the arrows out of bars that come and go; a bar that is asked about without its widget passes for
  // one.
  if (control == CC_ScrollBar) return QProxyStyle::subControlRect(control, option, part, nullptr);
  const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (control == CC_ComboBox && part == SC_ComboBoxEditField && combo && !combo->editable)
    return option->rect.adjusted(metrics::fieldPadding + 2, 0, -metrics::popUpArrowWidth, 0);
  return QProxyStyle::subControlRect(control, option, part, widget);
}

}  // namespace tarvo
