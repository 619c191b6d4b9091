// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/sheets/new_dictionary_dialog.h"

#include <QBoxLayout>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "platform/controls/windows.h"
#include "qt/bind/binder.h"
#include "qt/look/fonts.h"
#include "qt/look/metrics.h"
#include "qt/look/readable.h"
#include "qt/sheets/sheet_parts.h"

namespace tarvo {
namespace {

QLayout* fields(const NewDictionaryControls& controls, Binder& binder, QDialog* dialog) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(metrics::labelGap);
  grid->setVerticalSpacing(metrics::rowGap);
  QLineEdit* name = binder.field(controls.name, dialog);
  name->setMinimumWidth(metrics::fieldWidth);
  auto* label = new QLabel(toQString(controls.name.label()), dialog);
  label->setBuddy(name);
  grid->addWidget(label, 0, 0, Qt::AlignRight | Qt::AlignVCenter);
  grid->addWidget(name, 0, 1);
  QLabel* title = binder.text(controls.folderTitle, dialog);
  QLabel* folder = binder.text(controls.folderName, dialog);
  title->setWordWrap(false);
  grid->addWidget(title, 1, 0, Qt::AlignRight | Qt::AlignTop);
  grid->addWidget(folder, 1, 1);
  grid->setColumnStretch(1, 1);
  name->setFocus();
  return grid;
}

}  // namespace

QDialog* buildNewDictionaryDialog(const NewDictionaryControls& controls, Binder& binder, QWidget* parent) {
  const auto [dialog, rows] = buildFixedDialog(controls.window, binder, parent);
  QLabel* prompt = binder.text(controls.prompt, dialog);
  prompt->setFont(headingFont(prompt->font()));
  prompt->setMinimumWidth(readableWidth(prompt->fontMetrics()));
  rows->addWidget(prompt);
  rows->addSpacing(metrics::rowGap);
  rows->addLayout(fields(controls, binder, dialog));
  rows->addSpacing(metrics::sectionGap - metrics::rowGap);
  rows->addLayout(buildFoot(&controls.cancel, controls.ok, binder, dialog));
  return dialog;
}

}  // namespace tarvo
