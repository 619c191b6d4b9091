// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QStyleOptionButton>
#include <QStyleOptionHeader>
#include <QStyleOptionToolButton>
#include <QToolButton>

#include "qt/look/draw.h"
#include "qt/look/metrics.h"
#include "qt/look/plate.h"

namespace tarvo {
namespace {

bool is(const QStyleOption& option, QStyle::StateFlag flag) { return option.state.testFlag(flag); }

QColor pushed(const QStyleOption& option, const QColor& plate) {
  const QColor ink = option.palette.color(QPalette::ButtonText);
  if (!is(option, QStyle::State_Enabled)) return plate;
  if (is(option, QStyle::State_Sunken)) return mixed(plate, ink, 0.12);
  return is(option, QStyle::State_MouseOver) ? mixed(plate, ink, 0.05) : plate;
}

QColor pushedOrOn(const QStyleOption& option, const QColor& plate) {
  const QColor ink = option.palette.color(QPalette::ButtonText);
  return pushed(option, is(option, QStyle::State_On) ? mixed(plate, ink, 0.09) : plate);
}

bool isAccented(const QStyleOptionButton& button) {
  return button.features.testFlag(QStyleOptionButton::DefaultButton) && is(button, QStyle::State_Enabled);
}

void drawAccentedPlate(QPainter& painter, const QStyleOptionButton& button) {
  const QColor accent = button.palette.color(QPalette::Highlight);
  const QColor away = isDark(button.palette) ? Qt::white : Qt::black;
  const double share = is(button, QStyle::State_Sunken) ? 0.2 : is(button, QStyle::State_MouseOver) ? 0.1 : 0;
  drawPlate(painter, button.rect, metrics::controlRadius, mixed(accent, away, share));
  if (!showsFocus(button)) return;
  drawFocusRing(painter, button.rect, metrics::controlRadius, button.palette);
  const QRectF gap = QRectF(button.rect).adjusted(2, 2, -2, -2);
  drawPlate(painter, gap, metrics::controlRadius - 2, Qt::transparent, button.palette.color(QPalette::HighlightedText));
}

}  // namespace

bool drawPushButtonPlate(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  if (!button) return false;
  const bool isFlat = button->features.testFlag(QStyleOptionButton::Flat);
  if (isFlat && !is(option, QStyle::State_Sunken) && !is(option, QStyle::State_On)) return true;
  if (isAccented(*button)) {
    drawAccentedPlate(painter, *button);
    return true;
  }
  const QColor plate = option.palette.color(QPalette::Button);
  drawPlate(painter, option.rect, metrics::controlRadius, pushedOrOn(option, plate),
            option.palette.color(QPalette::Mid));
  if (showsFocus(option)) drawFocusRing(painter, option.rect, metrics::controlRadius, option.palette);
  return true;
}

bool drawPushButtonLabel(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  // A picture beside the text or a menu below the button is the base style's affair.
  if (!button || !button->icon.isNull() || button->features.testFlag(QStyleOptionButton::HasMenu)) return false;
  const auto role = isAccented(*button) ? QPalette::HighlightedText : QPalette::ButtonText;
  drawLabel(painter, option.rect, Qt::AlignCenter, button->text, option.palette.color(role));
  return true;
}

bool drawToolButton(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(&option);
  if (!button) return false;
  if (drawSegment(painter, option, widget)) return true;
  if (button->toolButtonStyle == Qt::ToolButtonTextUnderIcon) return drawToolbarItem(painter, option, widget);
  return false;
}

bool drawToolButtonPlate(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const bool isQuiet = is(option, QStyle::State_AutoRaise) &&
                       !(option.state & (QStyle::State_Sunken | QStyle::State_On | QStyle::State_MouseOver));
  if (isQuiet) return true;
  const bool isRaised = !is(option, QStyle::State_AutoRaise);
  const QColor plate = option.palette.color(isRaised ? QPalette::Button : QPalette::Window);
  const QColor border = isRaised ? option.palette.color(QPalette::Mid) : QColor();
  drawPlate(painter, option.rect, metrics::controlRadius, pushedOrOn(option, plate), border);
  return true;
}

bool drawCheckMark(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const bool isOn = is(option, QStyle::State_On), isMixed = is(option, QStyle::State_NoChange);
  const double side = qMin(option.rect.width(), option.rect.height());
  QRectF box(0, 0, side, side);
  box.moveCenter(QRectF(option.rect).center());
  const QPalette& palette = option.palette;
  if (!isOn && !isMixed) {
    drawPlate(painter, box, metrics::checkRadius, pushed(option, palette.color(QPalette::Base)),
              palette.color(QPalette::Dark));
    return true;
  }
  drawPlate(painter, box, metrics::checkRadius, pushed(option, palette.color(QPalette::Highlight)));
  const auto at = [&](double x, double y) { return box.topLeft() + QPointF(x, y) * side / 16; };
  const QList<QPointF> tick = isOn ? QList{at(4.2, 8.4), at(6.9, 11), at(11.8, 5.2)} : QList{at(4.5, 8), at(11.5, 8)};
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette.color(QPalette::HighlightedText), side / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(tick.constData(), static_cast<int>(tick.size()));
  painter.restore();
  return true;
}

bool drawArrow(QPainter& painter, const QStyleOption& option, Qt::ArrowType direction) {
  const double halfWidth = qMin(4.0, qMin(option.rect.width(), option.rect.height()) / 2.0 - 1);
  const auto role = is(option, QStyle::State_Enabled) ? QPalette::PlaceholderText : QPalette::Dark;
  drawChevron(painter, QRectF(option.rect).center(), halfWidth, direction, option.palette.color(role));
  return true;
}

bool drawSortMark(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(&option);
  if (!header || header->sortIndicator == QStyleOptionHeader::None) return false;
  return drawArrow(painter, option, header->sortIndicator == QStyleOptionHeader::SortUp ? Qt::UpArrow : Qt::DownArrow);
}

bool drawFocusFrame(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  // Plates draw their own ring; what is left is a text with a mark before it.
  const bool hasPlate = widget && (widget->inherits("QPushButton") || widget->inherits("QToolButton") ||
                                   widget->inherits("QComboBox") || widget->inherits("QAbstractItemView"));
  if (hasPlate || !option.state.testFlag(QStyle::State_KeyboardFocusChange)) return true;
  drawFocusRing(painter, option.rect, metrics::checkRadius, option.palette);
  return true;
}

}  // namespace tarvo
