// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QStyleOptionComboBox>

#include "qt/look/draw.h"
#include "qt/look/metrics.h"
#include "qt/look/plate.h"

namespace tarvo {

bool drawCombo(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(&option);
  if (!combo || combo->editable) return false;
  const QPalette& palette = option.palette;
  const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
  const bool isOpen = option.state & (QStyle::State_Sunken | QStyle::State_On);
  const bool isHovered = isEnabled && option.state.testFlag(QStyle::State_MouseOver);
  const QColor ink = palette.color(QPalette::ButtonText);
  const QColor plate = mixed(palette.color(QPalette::Button), ink, isOpen ? 0.1 : isHovered ? 0.05 : 0);
  drawPlate(painter, option.rect, metrics::controlRadius, plate, palette.color(QPalette::Mid));
  const QPointF centre(option.rect.right() + 1 - metrics::popUpArrowWidth / 2.0, QRectF(option.rect).center().y());
  const QColor mark = palette.color(isEnabled ? QPalette::PlaceholderText : QPalette::Dark);
  drawChevron(painter, centre - QPointF(0, 4), 3.5, Qt::UpArrow, mark);
  drawChevron(painter, centre + QPointF(0, 4), 3.5, Qt::DownArrow, mark);
  if (showsFocus(option)) drawFocusRing(painter, option.rect, metrics::controlRadius, palette);
  return true;
}

bool drawComboLabel(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(&option);
  if (!combo || combo->editable) return false;
  QRect text = option.rect.adjusted(metrics::fieldPadding + 2, 0, -metrics::popUpArrowWidth, 0);
  if (!combo->currentIcon.isNull()) {
    const QRect picture(text.left(), text.center().y() + 1 - combo->iconSize.height() / 2, combo->iconSize.width(),
                        combo->iconSize.height());
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    combo->currentIcon.paint(&painter, picture, Qt::AlignCenter, isEnabled ? QIcon::Normal : QIcon::Disabled);
    text.setLeft(picture.right() + 1 + metrics::checkBoxGap);
  }
  drawLabel(painter, text, Qt::AlignLeft | Qt::AlignVCenter, combo->currentText,
            option.palette.color(QPalette::ButtonText));
  return true;
}

}  // namespace tarvo
