// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QStyleOptionFrame>
#include <QStyleOptionSlider>
#include <QStyleOptionTab>
#include <QWidget>

#include "qt/look/draw.h"
#include "qt/look/metrics.h"
#include "qt/look/plate.h"

namespace tarvo {

bool drawCard(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
  if (frame && frame->lineWidth <= 0) return true;
  if (widget && widget->isWindow()) return false;  // the list of a pop-up
  const QPalette& palette = option.palette;
  drawPlate(painter, option.rect, metrics::cardRadius, palette.color(QPalette::Base), palette.color(QPalette::Mid));
  if (widget && widget->inherits("QAbstractItemView") && showsFocus(option))
    drawFocusRing(painter, option.rect, metrics::cardRadius, palette);
  return true;
}

bool drawHeader(QPainter& painter, const QStyleOption& option, const QWidget*) {
  painter.fillRect(option.rect, option.palette.color(QPalette::Base));
  drawHorizontalLine(painter, option.rect, option.palette.color(QPalette::Mid));
  return true;
}

bool drawDropMark(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const QColor accent = option.palette.color(QPalette::Highlight);
  if (option.rect.height() > 1)
    drawPlate(painter, option.rect, metrics::controlRadius, Qt::transparent, accent);
  else if (!option.rect.isNull())
    painter.fillRect(option.rect.adjusted(0, -1, 0, 1), accent);
  return true;
}

bool drawScrollBar(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(&option);
  if (!bar || !widget) return false;
  if (bar->maximum <= bar->minimum) return true;
  const QPalette& palette = option.palette;
  const double share = is(option, QStyle::State_MouseOver) ? 0.5 : 0.3;
  const QColor thumb = mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), share);
  QRectF slider = widget->style()->subControlRect(QStyle::CC_ScrollBar, bar, QStyle::SC_ScrollBarSlider, widget);
  slider.adjust(3, 3, -3, -3);
  drawPlate(painter, slider, qMin(slider.width(), slider.height()) / 2, thumb);
  return true;
}

bool drawTab(QPainter& painter, const QStyleOption& option, const QWidget*) {
  const QPalette& palette = option.palette;
  if (is(option, QStyle::State_Selected)) {
    QRectF mark = QRectF(option.rect).adjusted(metrics::rowGap, 0, -metrics::rowGap, 0);
    mark.setTop(mark.bottom() - 3);
    const bool isEnabled = is(option, QStyle::State_Enabled);
    drawPlate(painter, mark, 1.5, palette.color(isEnabled ? QPalette::Highlight : QPalette::Dark));
  }
  const QRectF face = QRectF(option.rect).adjusted(2, 2, -2, -metrics::grid);
  if (showsFocus(option)) drawFocusRing(painter, face, metrics::controlRadius, palette);
  return true;
}

bool drawTabFoot(QPainter& painter, const QStyleOption& option, const QWidget*) {
  QRectF top = option.rect;
  top.setHeight(1);
  drawHorizontalLine(painter, top, option.palette.color(QPalette::Mid));
  return true;
}

}  // namespace tarvo
