// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/caution_window.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/look/metrics.h"

namespace tarvo {

QDialog* buildScreenCaution(Interface& interface, Binder& binder, QWidget* parent) {
  auto* dialog = new QDialog(parent);
  ManagerOutlets& outlets = interface.manager;
  binder.window(outlets.displayAlertWindow, *dialog);
  auto* rows = new QVBoxLayout(dialog);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  QLabel* text = binder.text(outlets.displayAlertText, dialog);
  text->setMinimumWidth(24 * text->fontMetrics().height());
  rows->addWidget(text);
  rows->addSpacing(metrics::rowGap);
  auto* foot = new QHBoxLayout;
  foot->addWidget(binder.check(outlets.noDisplayDialogCheckBox, dialog));
  foot->addSpacing(metrics::sectionGap);
  foot->addStretch();
  QPushButton* close = binder.button(outlets.displayCloseButton, dialog);
  close->setDefault(true);
  close->setFocus();
  foot->addWidget(close);
  rows->addLayout(foot);
  return dialog;
}

}  // namespace tarvo
