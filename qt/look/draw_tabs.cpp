// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QStyleOptionTab>
#include <QWidget>

#include "qt/look/draw.h"
#include "qt/look/metrics.h"
#include "qt/look/plate.h"

namespace tarvo {
namespace {

QRectF face(const QStyleOption& option) { return QRectF(option.rect).adjusted(2, 2, -2, -metrics::grid); }

}  // namespace

bool drawTab(QPainter& painter, const QStyleOption& option, const QWidget*) {
  if (!qstyleoption_cast<const QStyleOptionTab*>(&option)) return false;
  const QPalette& palette = option.palette;
  const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
  if (option.state.testFlag(QStyle::State_Selected)) {
    QRectF mark = QRectF(option.rect).adjusted(metrics::rowGap, 0, -metrics::rowGap, 0);
    mark.setTop(mark.bottom() - 3);
    drawPlate(painter, mark, 1.5, palette.color(isEnabled ? QPalette::Highlight : QPalette::Dark));
  } else if (isEnabled && option.state.testFlag(QStyle::State_MouseOver)) {
    drawPlate(painter, face(option), metrics::controlRadius,
              mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.06));
  }
  if (showsFocus(option)) drawFocusRing(painter, face(option), metrics::controlRadius, palette);
  return true;
}

bool drawTabLabel(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(&option);
  if (!tab || !tab->icon.isNull()) return false;
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
  const auto role = isSelected || !isEnabled ? QPalette::WindowText : QPalette::PlaceholderText;
  drawLabel(painter, face(option).toRect(), Qt::AlignCenter, tab->text, option.palette.color(role));
  return true;
}

bool drawTabFoot(QPainter& painter, const QStyleOption& option, const QWidget*) {
  QRectF top = option.rect;
  top.setHeight(1);
  drawHorizontalLine(painter, top, option.palette.color(QPalette::Mid));
  return true;
}

}  // namespace tarvo
