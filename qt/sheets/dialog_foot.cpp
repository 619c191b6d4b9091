// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/sheets/dialog_foot.h"

#include <QBoxLayout>
#include <QDialog>
#include <QPushButton>

#include "qt/bind/binder.h"

namespace tarvo {

QLayout* buildFoot(Button* other, Button& first, Binder& binder, QDialog* dialog) {
  auto* foot = new QHBoxLayout;
  foot->addStretch();
  if (other != nullptr) foot->addWidget(binder.button(*other, dialog));
  QPushButton* button = binder.button(first, dialog);
  button->setDefault(true);
  foot->addWidget(button);
  return foot;
}

}  // namespace tarvo
