// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/office_pane.h"

#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/bind/form.h"
#include "qt/look/metrics.h"
#include "qt/panes/addin_list.h"
#include "qt/panes/popup_width.h"
#include "qt/panes/quiet_text.h"

namespace tarvo {
namespace {

// The tool that the installed macros start.
QWidget* buildTool(Interface& interface, Binder& binder, QWidget* pane) {
  auto* part = new QWidget(pane);
  Form form(binder, *part);
  PopUpButton& tool = interface.tools.officeToolPopup;
  QComboBox* popup = binder.popup(tool, part);
  popup->setFixedWidth(popUpWidth(tool, part->fontMetrics()));
  form.row(tool, popup);
  form.wide(quietText(binder.localized("OfficeExplanation"), part));
  return part;
}

}  // namespace

QWidget* buildOfficePane(Interface& interface, Binder& binder, QWidget* parent) {
  auto* pane = new QWidget(parent);
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(metrics::paneMargin, metrics::paneMargin, metrics::paneMargin, metrics::paneMargin);
  column->setSpacing(metrics::rowGap);
  AddinOutlets& addins = interface.addins;
  buildAddinList({addins.officeTableView,
                  addins.officeInfoField,
                  addins.officeReasonField,
                  {&addins.officeSearchButton, &addins.officePowerPointButton},
                  {"Column.Value", "Column.AppName", "Column.Version"},
                  "OfficeIntroduction",
                  "NoOfficeApplication"},
                 binder, pane, *column);
  column->addSpacing(metrics::sectionGap - metrics::rowGap);
  column->addWidget(buildTool(interface, binder, pane));
  binder.view(interface.manager.officeAddinView, *pane);
  return pane;
}

}  // namespace tarvo
