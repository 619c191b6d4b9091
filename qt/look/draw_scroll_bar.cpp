// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWidget>

#include "qt/look/draw.h"
#include "qt/look/metrics.h"
#include "qt/look/plate.h"

namespace tarvo {

bool drawScrollBar(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(&option);
  if (!bar || !widget) return false;
  const QPalette& palette = option.palette;
  if (bar->maximum <= bar->minimum) return true;
  const bool isHeld =
      option.state.testFlag(QStyle::State_Sunken) && bar->activeSubControls == QStyle::SC_ScrollBarSlider;
  const bool isHovered = option.state.testFlag(QStyle::State_MouseOver);
  QRectF slider = widget->style()->subControlRect(QStyle::CC_ScrollBar, bar, QStyle::SC_ScrollBarSlider, widget);
  const double margin = isHeld || isHovered ? 2 : 3;
  slider.adjust(margin, margin, -margin, -margin);
  const double share = isHeld ? 0.6 : isHovered ? 0.5 : 0.3;
  const QColor thumb = mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), share);
  drawPlate(painter, slider, qMin(slider.width(), slider.height()) / 2, thumb);
  return true;
}

}  // namespace tarvo
