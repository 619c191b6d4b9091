// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/tarvo_style.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QStyleOptionViewItem>

#include "qt/look/draw.h"
#include "qt/look/fonts.h"
#include "qt/look/panel_icons.h"
#include "qt/look/plate.h"

namespace tarvo {
namespace {

template <class Element>
using Drawing = std::pair<Element, Draw>;

bool drawNothing(QPainter&, const QStyleOption&, const QWidget*) { return true; }

constexpr Drawing<QStyle::PrimitiveElement> primitives[] = {
    {QStyle::PE_PanelButtonCommand, drawPushButtonPlate},
    {QStyle::PE_FrameDefaultButton, drawNothing},
    {QStyle::PE_IndicatorCheckBox, drawCheckMark},
    {QStyle::PE_IndicatorItemViewItemCheck, drawCheckMark},
    {QStyle::PE_FrameFocusRect, drawFocusFrame},
    {QStyle::PE_PanelLineEdit, drawField},
    {QStyle::PE_FrameLineEdit, drawNothing},
    {QStyle::PE_Frame, drawCard},
    {QStyle::PE_FrameTabWidget, drawTabFoot},
    {QStyle::PE_FrameTabBarBase, drawNothing},
    {QStyle::PE_PanelItemViewRow, drawNothing},
    {QStyle::PE_IndicatorItemViewItemDrop, drawDropMark},
};

constexpr Drawing<QStyle::ControlElement> controls[] = {
    {QStyle::CE_PushButtonLabel, drawPushButtonLabel},
    {QStyle::CE_HeaderSection, drawHeader},
    {QStyle::CE_HeaderEmptyArea, drawHeader},
    {QStyle::CE_TabBarTabShape, drawTab},
    {QStyle::CE_ToolBar, drawToolbar},
};

bool drawToolButton(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  return drawSegment(painter, option, widget) || drawToolbarItem(painter, option, widget);
}

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

// A chosen row is only tinted: text, pictures and boxes keep their colours. A list without the keyboard steps back.
QColor rowTint(const QStyleOption& option, const QWidget* widget) {
  const QPalette& palette = option.palette;
  const bool isCalm = widget && widget->inherits("QAbstractItemView") && !widget->hasFocus();
  return isCalm ? mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.1)
                : mixed(palette.color(QPalette::Base), palette.color(QPalette::Highlight), 0.16);
}

// Tells the current item of a pop-up while another one is pointed at and tinted: the open list may cover the pop-up.
void drawCurrentMark(QPainter& painter, const QRect& row, const QPalette& palette) {
  painter.fillRect(QRect(row.topLeft(), QSize(3, row.height())), palette.color(QPalette::Highlight));
}

}  // namespace

TarvoStyle::TarvoStyle(Scheme scheme) : QProxyStyle(QStringLiteral("fusion")), scheme_(scheme) {}

void TarvoStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  auto* label = qobject_cast<QLabel*>(widget);
  const bool isToolTip = widget->inherits("QTipLabel");  // whose markup is our own: see plainToolTip
  if (label != nullptr && !isToolTip && label->textFormat() == Qt::AutoText) label->setTextFormat(Qt::PlainText);
}

void TarvoStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  if (!drawn(primitives, element, option, painter, widget))
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void TarvoStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  if (drawn(controls, element, option, painter, widget)) return;
  if (const auto* cell = qstyleoption_cast<const QStyleOptionViewItem*>(option))
    return drawRow(element, *cell, painter, widget);
  if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option); item && element == CE_MenuItem)
    return drawItem(*item, painter, widget);
  QProxyStyle::drawControl(element, option, painter, widget);
}

void TarvoStyle::drawItem(QStyleOptionMenuItem item, QPainter* painter, const QWidget* widget) const {
  // The base writes the title of a divider beside its line; those of the styles have one, which is no text to read.
  if (item.menuItemType == QStyleOptionMenuItem::Separator) item.text.clear();
  if (!is(item, State_Enabled)) return QProxyStyle::drawControl(CE_MenuItem, &item, painter, widget);
  drawRow(CE_MenuItem, item, painter, widget);
  if (item.checked && widget && widget->inherits("QComboBox")) drawCurrentMark(*painter, item.rect, item.palette);
}

template <class Row>
void TarvoStyle::drawRow(ControlElement element, Row row, QPainter* painter, const QWidget* widget) const {
  if (is(row, State_Selected)) painter->fillRect(row.rect, rowTint(row, widget));
  row.state &= ~State_Selected;
  QProxyStyle::drawControl(element, &row, painter, widget);
}

void TarvoStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const {
  if (!drawn(complexControls, control, option, painter, widget))
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QIcon TarvoStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const {
  // The toolkit's bars ask for it though nothing ever overflows here; reading it would load every image plugin.
  if (picture == SP_ToolBarHorizontalExtensionButton || picture == SP_ToolBarVerticalExtensionButton) return {};
  const QIcon own = panelIcon(picture, scheme_);
  return own.isNull() ? QProxyStyle::standardIcon(picture, option, widget) : own;
}

QPalette TarvoStyle::standardPalette() const { return makePalette(scheme_); }

void applyLook(Scheme scheme, const std::string& language) {
  QApplication::setStyle(new TarvoStyle(scheme));
  QApplication::setPalette(makePalette(scheme));
  QApplication::setFont(applicationFont(language));
}

}  // namespace tarvo
