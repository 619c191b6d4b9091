// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/mail_pane.h"

#include <QLabel>
#include <QVBoxLayout>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/bind/image_widget.h"
#include "qt/look/fonts.h"
#include "qt/look/metrics.h"

namespace tarvo {
namespace {

constexpr int iconSide = 64;

}  // namespace

QWidget* buildMailPane(Interface& interface, Binder& binder, QWidget* parent) {
  auto* pane = new QWidget(parent);
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(metrics::paneMargin, metrics::paneMargin, metrics::paneMargin, metrics::paneMargin);
  column->setSpacing(metrics::rowGap);
  const View& view = interface.manager.mailTransView;
  const std::string& image = interface.manager.MT.image();
  auto* icon = new ImageWidget(iconSide, pane);
  icon->setImage(image, binder.icon(image));
  auto* title = new QLabel(toQString(view.label()), pane);
  title->setFont(headingFont(pane->font()));
  column->addStretch(1);
  column->addWidget(icon, 0, Qt::AlignHCenter);
  column->addWidget(title, 0, Qt::AlignHCenter);
  column->addStretch(1);
  binder.view(interface.manager.mailTransView, *pane);
  return pane;
}

}  // namespace tarvo
