// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/sheets/naming_dialog.h"

#include <QBoxLayout>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>

#include "qt/bind/binder.h"
#include "qt/bind/form.h"
#include "qt/look/metrics.h"
#include "qt/sheets/sheet_parts.h"
#include "style/style_naming.h"

namespace tarvo {

QDialog* buildNamingDialog(NamingOutlets& outlets, Binder& binder, QWidget* parent) {
  const auto [dialog, rows] = buildFixedDialog(outlets.styleNameWindow, binder, parent);
  rows->addWidget(buildHeading(outlets.styleNameWindow, dialog));
  rows->addSpacing(metrics::rowGap);
  auto* page = new QWidget(dialog);
  Form form(binder, *page);
  QLineEdit* name = binder.field(outlets.styleNameField, page);
  name->setMinimumWidth(metrics::fieldWidth);
  form.row(outlets.styleNameField, name);
  name->setFocus();
  rows->addWidget(page);
  rows->addSpacing(metrics::sectionGap - metrics::rowGap);
  rows->addLayout(buildFoot(&outlets.snCancelButton, outlets.snOKButton, binder, dialog));
  return dialog;
}

}  // namespace tarvo
