// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/style_metrics.h"

#include <QAbstractScrollArea>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QFrame>
#include <QStyleOptionSlider>
#include <QStyleOptionToolButton>
#include <QWidget>

#include "qt/look/metrics.h"
#include "qt/look/segment.h"

namespace tarvo {
namespace {

template <class Key>
struct Answer {
  Key key;
  int value;
};

constexpr Answer<QStyle::PixelMetric> fixedMetrics[] = {
    {QStyle::PM_ButtonDefaultIndicator, 0},
    {QStyle::PM_ButtonShiftHorizontal, 0},
    {QStyle::PM_ButtonShiftVertical, 0},
    {QStyle::PM_ButtonIconSize, 16},
    {QStyle::PM_CheckBoxLabelSpacing, metrics::checkBoxGap},
    {QStyle::PM_FocusFrameHMargin, metrics::cellMargin - 1},  // views add one
    {QStyle::PM_HeaderMargin, metrics::grid},
    {QStyle::PM_LayoutHorizontalSpacing, metrics::labelGap},
    {QStyle::PM_LayoutVerticalSpacing, metrics::rowGap},
    {QStyle::PM_ListViewIconSize, metrics::cellIcon},
    {QStyle::PM_MenuBarHMargin, metrics::grid},
    {QStyle::PM_MenuBarItemSpacing, 2},
    {QStyle::PM_MenuBarPanelWidth, 0},
    {QStyle::PM_MenuBarVMargin, 2},
    {QStyle::PM_MenuHMargin, 0},
    {QStyle::PM_MenuPanelWidth, 1},
    {QStyle::PM_MenuVMargin, metrics::grid},
    {QStyle::PM_ScrollBarExtent, metrics::scrollBarExtent},
    {QStyle::PM_ScrollView_ScrollBarSpacing, 0},
    {QStyle::PM_SmallIconSize, metrics::cellIcon},
    {QStyle::PM_TabBarBaseHeight, 0},
    {QStyle::PM_TabBarBaseOverlap, 0},
    {QStyle::PM_TabBarTabHSpace, 32},
    {QStyle::PM_TabBarTabShiftHorizontal, 0},
    {QStyle::PM_TabBarTabShiftVertical, 0},
    {QStyle::PM_TabBarTabVSpace, 16},
    {QStyle::PM_ToolBarFrameWidth, 0},
    {QStyle::PM_ToolBarHandleExtent, 0},
    {QStyle::PM_ToolBarIconSize, metrics::toolbarIcon},
    {QStyle::PM_ToolBarItemMargin, metrics::toolbarMargin},
    {QStyle::PM_ToolBarItemSpacing, metrics::toolbarItemGap},
    {QStyle::PM_ToolTipLabelFrameWidth, 6},
};

constexpr Answer<QStyle::StyleHint> fixedHints[] = {
    {QStyle::SH_ComboBox_AllowWheelScrolling, 0},  // scrolling a page must not change its pop-ups
    {QStyle::SH_ComboBox_Popup, 1},
    {QStyle::SH_ComboBox_PopupFrameStyle, QFrame::StyledPanel},
    {QStyle::SH_DialogButtonBox_ButtonsHaveIcons, 0},
    {QStyle::SH_DialogButtonLayout, QDialogButtonBox::GnomeLayout},  // the default button rightmost
    {QStyle::SH_EtchDisabledText, 0},
    {QStyle::SH_FormLayoutFieldGrowthPolicy, QFormLayout::FieldsStayAtSizeHint},
    {QStyle::SH_FormLayoutFormAlignment, Qt::AlignLeft | Qt::AlignTop},
    {QStyle::SH_FormLayoutLabelAlignment, Qt::AlignRight},
    {QStyle::SH_FormLayoutWrapPolicy, QFormLayout::DontWrapRows},
    {QStyle::SH_ItemView_ShowDecorationSelected, 1},
    {QStyle::SH_TabBar_Alignment, Qt::AlignLeft},
    {QStyle::SH_ToolTipLabel_Opacity, 255},
    {QStyle::SH_Widget_Animation_Duration, 0},
};

template <class Table, class Key>
std::optional<int> answer(const Table& table, Key key) {
  for (const auto& [known, value] : table)
    if (known == key) return value;
  return std::nullopt;
}

QSize toolButtonSize(const QStyleOptionToolButton& button, QSize contents, const QWidget* widget) {
  const QFontMetrics& font = button.fontMetrics;
  const int text = font.size(Qt::TextShowMnemonic, button.text).width();
  if (segmentPlace(widget)) {
    if (button.icon.isNull()) return {text + 2 * metrics::buttonPadding, metrics::controlHeight(font)};
    return {qMax(metrics::segmentWidth, button.iconSize.width() + 3 * metrics::grid),
            qMax(metrics::segmentHeight, button.iconSize.height() + 3 * metrics::grid)};
  }
  if (button.toolButtonStyle == Qt::ToolButtonTextUnderIcon)
    return {qMax(metrics::toolbarItemMinimumWidth, text + 4 * metrics::grid),
            metrics::onGrid(6 + button.iconSize.height() + 2 + font.height() + metrics::grid)};
  return (contents + QSize(8, 8)).expandedTo({metrics::minimumControlHeight, metrics::minimumControlHeight});
}

QSize menuItemSize(const QStyleOptionMenuItem& item, QSize contents) {
  if (item.menuItemType == QStyleOptionMenuItem::Separator) return {contents.width(), 2 * metrics::grid + 1};
  int width = contents.width() + metrics::menuMark + metrics::fieldPadding + 2 * metrics::grid;
  if (item.maxIconWidth > 0) width += metrics::cellIcon + metrics::checkBoxGap;
  if (item.menuItemType == QStyleOptionMenuItem::SubMenu) width += metrics::menuMark;
  if (item.reservedShortcutWidth > 0 || item.text.contains(QLatin1Char('\t'))) width += 6 * metrics::grid;
  return {width, metrics::menuItemHeight(item.fontMetrics)};
}

QSize comboSize(const QStyleOption& option, QSize contents) {
  const int slack = option.fontMetrics.height() / 4;  // the contents are measured by their ink, drawn by their advance
  return {metrics::fieldPadding + 2 + contents.width() + slack + metrics::popUpArrowWidth,
          metrics::controlHeight(option.fontMetrics)};
}

QSize pushButtonSize(const QStyleOptionButton& button, QSize contents) {
  const int height = metrics::controlHeight(button.fontMetrics);
  if (button.text.isEmpty()) return {qMax(contents.width() + 3 * metrics::grid, height), height};
  return {qMax(metrics::buttonMinimumWidth, contents.width() + 2 * metrics::buttonPadding), height};
}

// The bar has no arrows: the slider runs along its whole length.
QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part) {
  const bool isHorizontal = bar.orientation == Qt::Horizontal;
  const int length = isHorizontal ? bar.rect.width() : bar.rect.height();
  const int range = bar.maximum - bar.minimum;
  const qint64 share = qint64(length) * bar.pageStep / qMax(qint64(1), qint64(range) + bar.pageStep);
  const int slider = range <= 0 ? length : qBound(qMin(28, length), static_cast<int>(share), length);
  const int start =
      QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, length - slider, bar.upsideDown);
  const auto along = [&](int from, int to) {
    return isHorizontal ? bar.rect.adjusted(from, 0, to - length, 0) : bar.rect.adjusted(0, from, 0, to - length);
  };
  switch (part) {
    case QStyle::SC_ScrollBarGroove: return bar.rect;
    case QStyle::SC_ScrollBarSlider: return along(start, start + slider);
    case QStyle::SC_ScrollBarSubPage: return along(0, start);
    case QStyle::SC_ScrollBarAddPage: return along(start + slider, length);
    default: return {};
  }
}

std::optional<QRect> comboPart(const QStyleOptionComplex& option, QStyle::SubControl part) {
  const QRect& rect = option.rect;
  const int text = metrics::fieldPadding + 2;
  switch (part) {
    case QStyle::SC_ComboBoxEditField: return rect.adjusted(text, 0, -metrics::popUpArrowWidth, 0);
    case QStyle::SC_ComboBoxArrow: return rect.adjusted(rect.width() - metrics::popUpArrowWidth, 0, 0, 0);
    // The texts of the list stand over the text of the button, their ticks before it.
    case QStyle::SC_ComboBoxListBoxPopup:
      return rect.adjusted(text - metrics::menuMark - metrics::grid, 0, metrics::grid, 0);
    default: return std::nullopt;
  }
}

}  // namespace

std::optional<int> styleMetric(QStyle::PixelMetric metric, const QStyleOption* option, const QWidget* widget) {
  const QFontMetrics font = widget ? widget->fontMetrics() : option ? option->fontMetrics : QFontMetrics(QFont());
  switch (metric) {
    case QStyle::PM_DefaultFrameWidth:
      return qobject_cast<const QAbstractScrollArea*>(widget) ? metrics::listPadding : 1;
    case QStyle::PM_HeaderDefaultSectionSizeVertical: return metrics::rowHeight(font);
    case QStyle::PM_IndicatorWidth:
    case QStyle::PM_IndicatorHeight: return metrics::checkBoxSize(font);
    case QStyle::PM_LayoutLeftMargin:
    case QStyle::PM_LayoutTopMargin:
    case QStyle::PM_LayoutRightMargin:
    case QStyle::PM_LayoutBottomMargin: return widget && widget->isWindow() ? metrics::paneMargin : metrics::rowGap;
    default: return answer(fixedMetrics, metric);
  }
}

std::optional<int> hintValue(QStyle::StyleHint hint) { return answer(fixedHints, hint); }

std::optional<QSize> sizeOf(QStyle::ContentsType type, const QStyleOption* option, QSize contents,
                            const QWidget* widget) {
  if (!option) return std::nullopt;
  switch (type) {
    case QStyle::CT_PushButton:
      if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
        return pushButtonSize(*button, contents);
      break;
    case QStyle::CT_ToolButton:
      if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option))
        return toolButtonSize(*button, contents, widget);
      break;
    case QStyle::CT_MenuItem:
      if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
        return menuItemSize(*item, contents);
      break;
    case QStyle::CT_ComboBox: return comboSize(*option, contents);
    case QStyle::CT_LineEdit: return QSize(contents.width(), metrics::controlHeight(option->fontMetrics));
    case QStyle::CT_MenuBarItem: return contents + QSize(5 * metrics::grid, 2 * metrics::grid);
    default: break;
  }
  return std::nullopt;
}

std::optional<QRect> elementRect(QStyle::SubElement element, const QStyleOption* option, const QStyle& style) {
  // A page of a tab view reaches to the edges of the view: the pane has margins of its own.
  if (element == QStyle::SE_TabWidgetTabContents)
    return style.subElementRect(QStyle::SE_TabWidgetTabPane, option).adjusted(0, 1, 0, 0);
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  if (element != QStyle::SE_LineEditContents || !frame || frame->lineWidth <= 0) return std::nullopt;
  const int inset = metrics::fieldPadding - 2;  // the field adds two
  return option->rect.adjusted(inset, 2, -inset, -2);
}

std::optional<QRect> partRect(QStyle::ComplexControl control, const QStyleOptionComplex* option,
                              QStyle::SubControl part) {
  if (!option) return std::nullopt;
  if (control == QStyle::CC_ScrollBar)
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option)) return scrollBarPart(*bar, part);
  if (control == QStyle::CC_ComboBox)
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option); combo && !combo->editable)
      return comboPart(*option, part);
  return std::nullopt;
}

}  // namespace tarvo
