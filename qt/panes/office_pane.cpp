// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/office_pane.h"

#include <QComboBox>
#include <QLabel>
#include <QWidget>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/bind/form.h"
#include "qt/look/metrics.h"
#include "qt/panes/popup_width.h"

namespace tarvo {

QWidget* buildOfficePane(Interface& interface, Binder& binder, QWidget* parent) {
  auto* pane = new QWidget(parent);
  Form form(binder, *pane, metrics::paneMargin);
  auto* explanation = new QLabel(binder.localized("OfficeExplanation"), pane);
  explanation->setTextFormat(Qt::PlainText);
  explanation->setWordWrap(true);
  explanation->setForegroundRole(QPalette::PlaceholderText);
  PopUpButton& tool = interface.tools.officeToolPopup;
  QComboBox* popup = binder.popup(tool, pane);
  popup->setFixedWidth(popUpWidth(tool, pane->fontMetrics()));
  form.row(tool, popup);
  form.wide(explanation);
  form.closeRows();
  binder.view(interface.manager.officeAddinView, *pane);
  return pane;
}

}  // namespace tarvo
