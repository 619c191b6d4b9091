// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/notice_line.h"

#include <QEvent>

#include "qt/look/metrics.h"

namespace tarvo {

NoticeLine::NoticeLine(QWidget* parent) : QLabel(parent) {
  setObjectName(QStringLiteral("notice"));
  setTextFormat(Qt::PlainText);
  setContentsMargins(metrics::paneMargin, metrics::rowGap, metrics::paneMargin, metrics::rowGap);
  setBackgroundRole(QPalette::Midlight);
  setAutoFillBackground(true);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  hide();
}

void NoticeLine::tell(const QString& text) {
  text_ = text;
  elide();
  // As a paragraph it wraps, and a path is no markup.
  setToolTip(text.isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()));
  setAccessibleName(text);
  setVisible(!text.isEmpty());
}

void NoticeLine::elide() { setText(fontMetrics().elidedText(text_, Qt::ElideRight, contentsRect().width())); }

void NoticeLine::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  elide();
}

void NoticeLine::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::FontChange) elide();
}

}  // namespace tarvo
