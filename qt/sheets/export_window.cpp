// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/sheets/export_window.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialog>

#include "qt/bind/binder.h"
#include "qt/bind/form.h"
#include "qt/look/metrics.h"
#include "qt/sheets/sheet_parts.h"
#include "style/style_exchange.h"

namespace tarvo {

QDialog* buildExportWindow(ExportOutlets& outlets, Binder& binder, QWidget* parent) {
  const auto [dialog, rows] = buildFixedDialog(outlets.exportWindow, binder, parent);
  auto* page = new QWidget(dialog);
  Form form(binder, *page);
  QComboBox* styles = binder.popup(outlets.exportStylePopup, page);
  styles->setMinimumWidth(metrics::fieldWidth);
  form.row(outlets.exportStylePopup, styles);
  rows->addWidget(page);
  rows->addSpacing(metrics::sectionGap - metrics::rowGap);
  rows->addLayout(buildFoot(&outlets.exportCloseButton, outlets.exportButton, binder, dialog));
  return dialog;
}

}  // namespace tarvo
