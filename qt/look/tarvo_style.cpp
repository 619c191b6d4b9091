// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/tarvo_style.h"

#include <QApplication>
#include <QStyleOptionViewItem>
#include <QTabBar>

#include "qt/look/draw.h"
#include "qt/look/fonts.h"
#include "qt/look/panel_icons.h"
#include "qt/look/style_metrics.h"

namespace tarvo {
namespace {

template <class Element>
struct Drawing {
  Element element;
  Draw draw;
};

template <Qt::ArrowType direction>
bool drawArrowTo(QPainter& painter, const QStyleOption& option, const QWidget*) {
  return drawArrow(painter, option, direction);
}

constexpr Drawing<QStyle::PrimitiveElement> primitives[] = {
    {QStyle::PE_PanelButtonCommand, drawPushButtonPlate},
    {QStyle::PE_FrameDefaultButton, drawNothing},
    {QStyle::PE_PanelButtonTool, drawToolButtonPlate},
    {QStyle::PE_IndicatorCheckBox, drawCheckMark},
    {QStyle::PE_IndicatorItemViewItemCheck, drawCheckMark},
    {QStyle::PE_IndicatorArrowUp, drawArrowTo<Qt::UpArrow>},
    {QStyle::PE_IndicatorArrowDown, drawArrowTo<Qt::DownArrow>},
    {QStyle::PE_IndicatorArrowLeft, drawArrowTo<Qt::LeftArrow>},
    {QStyle::PE_IndicatorArrowRight, drawArrowTo<Qt::RightArrow>},
    {QStyle::PE_IndicatorHeaderArrow, drawSortMark},
    {QStyle::PE_FrameFocusRect, drawFocusFrame},
    {QStyle::PE_PanelLineEdit, drawField},
    {QStyle::PE_FrameLineEdit, drawNothing},
    {QStyle::PE_Frame, drawFrame},
    {QStyle::PE_FrameMenu, drawNothing},
    {QStyle::PE_FrameGroupBox, drawNothing},
    {QStyle::PE_FrameTabWidget, drawTabFoot},
    {QStyle::PE_FrameTabBarBase, drawNothing},
    {QStyle::PE_PanelItemViewRow, drawNothing},
    {QStyle::PE_IndicatorItemViewItemDrop, drawDropMark},
    {QStyle::PE_PanelMenu, drawMenuPlate},
    {QStyle::PE_PanelTipLabel, drawToolTip},
};

constexpr Drawing<QStyle::ControlElement> controls[] = {
    {QStyle::CE_PushButtonLabel, drawPushButtonLabel},
    {QStyle::CE_ComboBoxLabel, drawComboLabel},
    {QStyle::CE_ShapedFrame, drawLine},
    {QStyle::CE_HeaderSection, drawHeaderSection},
    {QStyle::CE_HeaderLabel, drawHeaderLabel},
    {QStyle::CE_HeaderEmptyArea, drawHeaderRest},
    {QStyle::CE_TabBarTabShape, drawTab},
    {QStyle::CE_TabBarTabLabel, drawTabLabel},
    {QStyle::CE_MenuItem, drawMenuItem},
    {QStyle::CE_MenuBarItem, drawMenuBarItem},
    {QStyle::CE_MenuBarEmptyArea, drawMenuBar},
    {QStyle::CE_ToolBar, drawToolbar},
};

constexpr Drawing<QStyle::ComplexControl> complexControls[] = {
    {QStyle::CC_ComboBox, drawCombo},
    {QStyle::CC_ToolButton, drawToolButton},
    {QStyle::CC_ScrollBar, drawScrollBar},
};

template <class Table, class Element>
bool drawn(const Table& table, Element element, const QStyleOption* option, QPainter* painter, const QWidget* widget) {
  for (const auto& [known, draw] : table)
    if (known == element) return option && draw(*painter, *option, widget);
  return false;
}

}  // namespace

TarvoStyle::TarvoStyle(Scheme scheme) : QProxyStyle(QStringLiteral("fusion")), scheme_(scheme) {}

void TarvoStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  if (!drawn(primitives, element, option, painter, widget))
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void TarvoStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  if (drawn(controls, element, option, painter, widget)) return;
  const auto* cell = qstyleoption_cast<const QStyleOptionViewItem*>(option);
  if (element != CE_ItemViewItem || !cell) return QProxyStyle::drawControl(element, option, painter, widget);
  // The plate of a chosen row is only a tint, so the base draws text, picture and check box as of any other row.
  drawCellBackground(*painter, *option, widget);
  QStyleOptionViewItem calm = *cell;
  calm.state &= ~State_Selected;
  calm.backgroundBrush = {};
  QProxyStyle::drawControl(element, &calm, painter, widget);
}

void TarvoStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const {
  if (!drawn(complexControls, control, option, painter, widget))
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect TarvoStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  if (const auto rect = elementRect(element, option, *this)) return *rect;
  return QProxyStyle::subElementRect(element, option, widget);
}

QRect TarvoStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
  if (const auto rect = partRect(control, option, part)) return *rect;
  return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize TarvoStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const {
  if (const auto size = sizeOf(type, option, contents, widget)) return *size;
  return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int TarvoStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  if (const auto value = styleMetric(metric, option, widget)) return *value;
  return QProxyStyle::pixelMetric(metric, option, widget);
}

int TarvoStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returned) const {
  if (const auto value = hintValue(hint)) return *value;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon TarvoStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const {
  // The toolkit's bars ask for it though nothing ever overflows here; reading it would load every image plugin.
  if (picture == SP_ToolBarHorizontalExtensionButton || picture == SP_ToolBarVerticalExtensionButton) return {};
  const QIcon own = panelIcon(picture, scheme_);
  return own.isNull() ? QProxyStyle::standardIcon(picture, option, widget) : own;
}

QPalette TarvoStyle::standardPalette() const { return makePalette(scheme_); }

void TarvoStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (qobject_cast<QTabBar*>(widget)) widget->setAttribute(Qt::WA_Hover);
}

void applyLook(QApplication& application, Scheme scheme, const std::string& language) {
  application.setStyle(new TarvoStyle(scheme));
  application.setPalette(makePalette(scheme));
  application.setFont(applicationFont(language));
}

}  // namespace tarvo
