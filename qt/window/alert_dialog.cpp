// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/alert_dialog.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "qt/bind/binder.h"
#include "qt/look/fonts.h"
#include "qt/look/metrics.h"
#include "qt/look/push_button.h"
#include "qt/look/readable.h"
#include "qt/window/alert_details.h"

namespace tarvo {
namespace {

void addParagraph(QBoxLayout& rows, const std::string& text, QWidget& dialog, const QFont& font) {
  auto* label = new QLabel(toQString(text), &dialog);
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setFont(font);
  wrapReadably(*label);
  rows.addWidget(label, 0, Qt::AlignLeft);
}

}  // namespace

AlertDialog::AlertDialog(const Alert& alert, const std::string& detailsTitle, QWidget* parent) : QDialog(parent) {
  const int last = static_cast<int>(alert.buttons.size()) - 1;
  cancel_ = alert.cancelButton < 0 ? last : alert.cancelButton;
  setObjectName(QStringLiteral("alert"));
  setWindowTitle(toQString(alert.title.empty() ? alert.message : alert.title));
  auto* rows = new QVBoxLayout(this);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  if (!alert.title.empty()) addParagraph(*rows, alert.title, *this, headingFont(font()));
  addParagraph(*rows, alert.message, *this, font());
  QPushButton* details = nullptr;
  if (!alert.details.empty()) details = addDetails(*this, *rows, toQString(alert.details), toQString(detailsTitle));
  rows->addSpacing(metrics::rowGap);
  auto* buttons = new QHBoxLayout;
  rows->addLayout(buttons);
  for (int i = last; i >= 0; --i) {
    auto* button = new PushButton(toQString(alert.buttons[static_cast<std::size_t>(i)]), this);
    button->setObjectName(QStringLiteral("alert.%1").arg(i));
    button->setDefault(i == 0);
    if (i == 0) button->setFocus();
    connect(button, &QPushButton::clicked, this, [this, i] { done(i); });
    buttons->addWidget(button);
  }
  buttons->insertStretch(0);
  if (details != nullptr) buttons->insertWidget(0, details);
}

void AlertDialog::reject() { done(cancel_); }

}  // namespace tarvo
