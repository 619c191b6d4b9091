// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QStyleOptionButton>
#include <QWidget>

#include "qt/look/draw.h"
#include "qt/look/metrics.h"
#include "qt/look/plate.h"

namespace tarvo {
namespace {

bool isAccented(const QStyleOptionButton& button) {
  return button.features.testFlag(QStyleOptionButton::DefaultButton) && is(button, QStyle::State_Enabled);
}

void drawAccentedPlate(QPainter& painter, const QStyleOptionButton& button) {
  drawPlate(painter, button.rect, metrics::controlRadius, pushed(button, button.palette.color(QPalette::Highlight)));
  if (!showsFocus(button)) return;
  drawFocusRing(painter, button.rect, metrics::controlRadius, button.palette);
  const QRectF gap = QRectF(button.rect).adjusted(2, 2, -2, -2);
  drawPlate(painter, gap, metrics::controlRadius - 2, Qt::transparent, button.palette.color(QPalette::HighlightedText));
}

}  // namespace

bool drawPushButtonPlate(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  if (!button || button->features.testFlag(QStyleOptionButton::Flat)) return false;
  if (isAccented(*button)) {
    drawAccentedPlate(painter, *button);
    return true;
  }
  const QPalette& palette = option.palette;
  drawPlate(painter, option.rect, metrics::controlRadius, pushed(option, palette.color(QPalette::Button)),
            palette.color(QPalette::Mid));
  if (showsFocus(option)) drawFocusRing(painter, option.rect, metrics::controlRadius, palette);
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

bool drawCheckMark(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const bool isOn = is(option, QStyle::State_On), isMixed = is(option, QStyle::State_NoChange);
  const double side = qMin(option.rect.width(), option.rect.height());
  QRectF box(0, 0, side, side);
  box.moveCenter(QRectF(option.rect).center());
  const QPalette& palette = option.palette;
  if (!isOn && !isMixed) {
    drawPlate(painter, box, metrics::checkRadius, palette.color(QPalette::Base), palette.color(QPalette::Dark));
    return true;
  }
  drawPlate(painter, box, metrics::checkRadius, palette.color(QPalette::Highlight));
  const auto at = [&](double x, double y) { return box.topLeft() + QPointF(x, y) * side / 16; };
  const QPolygonF tick =
      isOn ? QPolygonF{at(4.2, 8.4), at(6.9, 11), at(11.8, 5.2)} : QPolygonF{at(4.5, 8), at(11.5, 8)};
  drawStroke(painter, tick, side / 8, palette.color(QPalette::HighlightedText));
  return true;
}

bool drawFocusFrame(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  // Plates draw their own ring; what is left is a text with a mark before it.
  const bool hasPlate = widget && (widget->inherits("QPushButton") || widget->inherits("QToolButton") ||
                                   widget->inherits("QComboBox") || widget->inherits("QAbstractItemView"));
  if (hasPlate || !is(option, QStyle::State_KeyboardFocusChange)) return true;
  drawFocusRing(painter, option.rect, metrics::checkRadius, option.palette);
  return true;
}

}  // namespace tarvo
