// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/form.h"

#include <QGridLayout>
#include <QLabel>

#include "qt/bind/binder.h"
#include "qt/look/fonts.h"
#include "qt/look/metrics.h"

namespace tarvo {

Form::Form(Binder& binder, QWidget& page, int margin) : binder_(binder), page_(page), grid_(*new QGridLayout(&page)) {
  grid_.setContentsMargins(margin, margin, margin, margin);
  grid_.setHorizontalSpacing(metrics::labelGap);
  grid_.setVerticalSpacing(metrics::rowGap);
  grid_.setColumnStretch(1, 1);
}

QLabel* Form::heading(std::string_view textKey) {
  if (next_ > 0) grid_.setRowMinimumHeight(next_++, metrics::sectionGap - 2 * metrics::rowGap);
  auto* heading = new QLabel(binder_.localized(textKey), &page_);
  heading->setFont(headingFont(page_.font()));
  wide(heading);
  return heading;
}

void Form::row(const Control& control, QWidget* field) {
  auto* label = new QLabel(toQString(control.label()), &page_);
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(field);
  grid_.addWidget(label, next_, 0, Qt::AlignRight | Qt::AlignVCenter);
  grid_.addWidget(field, next_++, 1, Qt::AlignLeft | Qt::AlignVCenter);
}

void Form::wide(QWidget* field) { grid_.addWidget(field, next_++, 0, 1, 2); }

void Form::closeRows() { grid_.setRowStretch(next_++, 1); }

}  // namespace tarvo
