// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/sheets/connection_sheet.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>

#include "install/connection_check.h"
#include "qt/bind/binder.h"
#include "qt/look/metrics.h"
#include "qt/look/readable.h"
#include "qt/sheets/sheet_parts.h"

namespace tarvo {

QDialog* buildConnectionSheet(ConnectionOutlets& outlets, Binder& binder, QWidget* parent) {
  const auto [dialog, rows] = buildFixedDialog(outlets.sslPanel, binder, parent);
  rows->addWidget(buildHeading(outlets.sslPanel, dialog));
  QLabel* text = binder.text(outlets.sslText, dialog);
  wrapReadably(*text);
  rows->addWidget(text, 0, Qt::AlignLeft);
  rows->addSpacing(metrics::rowGap);
  rows->addWidget(binder.check(outlets.sslCheck, dialog));
  rows->addSpacing(metrics::sectionGap - metrics::rowGap);
  rows->addLayout(buildFoot(nullptr, outlets.sslOKButton, binder, dialog));
  return dialog;
}

}  // namespace tarvo
