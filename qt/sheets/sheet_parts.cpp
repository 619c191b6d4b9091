// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/sheets/sheet_parts.h"

#include <QBoxLayout>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "platform/controls/windows.h"
#include "qt/bind/binder.h"
#include "qt/look/fonts.h"
#include "qt/look/metrics.h"

namespace tarvo {

FixedDialog buildFixedDialog(Window& window, Binder& binder, QWidget* parent) {
  auto* dialog = new QDialog(parent);
  binder.window(window, *dialog);
  auto* rows = new QVBoxLayout(dialog);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  return {dialog, rows};
}

QLabel* buildHeading(const Window& window, QDialog* dialog) {
  auto* heading = new QLabel(toQString(window.title()), dialog);
  heading->setTextFormat(Qt::PlainText);
  heading->setFont(headingFont(heading->font()));
  return heading;
}

QLayout* buildFoot(Button* other, Button& first, Binder& binder, QDialog* dialog) {
  auto* foot = new QHBoxLayout;
  foot->addStretch();
  if (other != nullptr) foot->addWidget(binder.button(*other, dialog));
  QPushButton* button = binder.button(first, dialog);
  button->setDefault(true);
  foot->addWidget(button);
  return foot;
}

void beginWide(QDialog& dialog, int width) {
  const int room = dialog.screen()->availableGeometry().width() - 2 * metrics::paneMargin;
  dialog.resize(std::max(std::min(width, room), dialog.minimumSizeHint().width()), dialog.sizeHint().height());
}

}  // namespace tarvo
