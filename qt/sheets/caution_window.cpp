// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/sheets/caution_window.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "platform/controls/windows.h"
#include "qt/bind/binder.h"
#include "qt/look/metrics.h"
#include "qt/look/readable.h"
#include "qt/sheets/sheet_parts.h"

namespace tarvo {

QDialog* buildCaution(const CautionControls& controls, Binder& binder, QWidget* parent) {
  const auto [dialog, rows] = buildFixedDialog(controls.window, binder, parent);
  QLabel* text = binder.text(controls.text, dialog);
  wrapReadably(*text);
  rows->addWidget(text, 0, Qt::AlignLeft);
  rows->addSpacing(metrics::rowGap);
  auto* foot = new QHBoxLayout;
  if (controls.again != nullptr) {
    foot->addWidget(binder.check(*controls.again, dialog));
    foot->addSpacing(metrics::sectionGap);
  }
  foot->addStretch();
  QPushButton* close = binder.button(controls.close, dialog);
  close->setDefault(true);
  close->setFocus();
  foot->addWidget(close);
  rows->addLayout(foot);
  return dialog;
}

}  // namespace tarvo
