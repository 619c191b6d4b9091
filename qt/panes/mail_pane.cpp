// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/mail_pane.h"

#include <QVBoxLayout>
#include <QWidget>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/look/metrics.h"
#include "qt/panes/addin_list.h"

namespace tarvo {

QWidget* buildMailPane(Interface& interface, Binder& binder, QWidget* parent) {
  auto* pane = new QWidget(parent);
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(metrics::paneMargin, metrics::paneMargin, metrics::paneMargin, metrics::paneMargin);
  column->setSpacing(metrics::rowGap);
  AddinOutlets& addins = interface.addins;
  buildAddinList({addins.mailTableView,
                  addins.mailinfoField,
                  addins.mailReasonField,
                  {&addins.mailCautionButton, &addins.scriptEditorButton, &addins.scriptUtilityButton},
                  {"Column.Value", "Column.MailProgram"},
                  "MailIntroduction",
                  "NoMailProgram"},
                 binder, pane, *column);
  binder.view(interface.manager.mailTransView, *pane);
  return pane;
}

}  // namespace tarvo
