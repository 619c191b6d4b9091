// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/toolbar_customise.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "qt/bind/binder.h"
#include "qt/bind/toolbar_choices.h"
#include "qt/look/metrics.h"
#include "qt/look/push_button.h"

namespace tarvo {
namespace {

QPushButton* plainButton(Binder& binder, const char* key, QWidget& dialog) {
  return new PushButton(binder.localized(key), &dialog);
}

QLabel* labelOf(QWidget& field, Binder& binder, const char* key, QWidget& dialog) {
  auto* label = new QLabel(binder.localized(key), &dialog);
  label->setBuddy(&field);
  field.setAccessibleName(label->text());
  return label;
}

}  // namespace

QDialog* buildToolbarCustomise(Toolbar& toolbar, Binder& binder, QWidget* parent) {
  auto* dialog = new QDialog(parent);
  dialog->setObjectName(QStringLiteral("toolbarCustomise"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(binder.localized("Customize.Title"));

  auto* list = new QListWidget(dialog);
  list->setMinimumHeight(4 * metrics::rowHeight(list->fontMetrics()));
  auto* up = plainButton(binder, "Customize.MoveUp", *dialog);
  auto* down = plainButton(binder, "Customize.MoveDown", *dialog);
  auto* reset = plainButton(binder, "Customize.Reset", *dialog);
  bindToolbarOrder(toolbar, binder, *list, *up, *down, *reset);
  auto* beside = new QVBoxLayout;
  for (QPushButton* button : {up, down, reset}) beside->addWidget(button);
  beside->addStretch();
  auto* order = new QHBoxLayout;
  order->addWidget(list, 1);
  order->addLayout(beside);

  auto* modes = new QComboBox(dialog);
  bindToolbarDisplay(toolbar, binder, *modes);
  auto* done = new QPushButton(binder.localized("Customize.Done"), dialog);
  done->setDefault(true);
  QObject::connect(done, &QPushButton::clicked, dialog, &QDialog::accept);
  auto* foot = new QHBoxLayout;
  foot->addWidget(labelOf(*modes, binder, "Customize.Display", *dialog));
  foot->addWidget(modes);
  foot->addStretch();
  foot->addSpacing(metrics::sectionGap);
  foot->addWidget(done);

  auto* rows = new QVBoxLayout(dialog);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->addWidget(labelOf(*list, binder, "Customize.Items", *dialog));
  rows->addLayout(order);
  rows->addSpacing(metrics::rowGap);
  rows->addLayout(foot);
  return dialog;
}

}  // namespace tarvo
