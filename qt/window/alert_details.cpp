// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/alert_details.h"

#include <QBoxLayout>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>

#include "qt/look/metrics.h"
#include "qt/look/push_button.h"

namespace tarvo {

namespace {
constexpr int linesOfDetails = 5;
}

QPushButton* addDetails(QDialog& dialog, QBoxLayout& rows, const QString& details, const QString& title) {
  auto* text = new QPlainTextEdit(details, &dialog);
  text->setObjectName(QStringLiteral("alert.details.text"));
  text->setAccessibleName(title);
  text->setReadOnly(true);
  text->setTabChangesFocus(true);
  text->setFixedHeight(linesOfDetails * text->fontMetrics().lineSpacing() + 2 * metrics::rowGap);
  text->hide();
  rows.addWidget(text);
  auto* button = new PushButton(title, &dialog);
  button->setObjectName(QStringLiteral("alert.details"));
  button->setCheckable(true);
  QObject::connect(button, &QPushButton::toggled, text, [text](bool isWanted) {
    text->setVisible(isWanted);
    if (isWanted) text->setFocus();
  });
  return button;
}

}  // namespace tarvo
