// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/option_rows.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "app/panes.h"
#include "platform/controls/controls.h"
#include "qt/bind/binder.h"
#include "qt/bind/form.h"
#include "qt/look/metrics.h"
#include "qt/panes/popup_width.h"

namespace tarvo {
namespace {

constexpr int room =
    static_cast<int>(rowOf(Pane::style).size.width) - 2 * metrics::paneMargin - 2 * metrics::scrollBarExtent;

}  // namespace

OptionRows::OptionRows(Form& form, QWidget& page) : form_(form), page_(page) {}

void OptionRows::measure(const PopUpButton& popup) {
  const QFontMetrics font(page_.font());
  widestLabel_ = std::max(widestLabel_, font.horizontalAdvance(toQString(popup.label())));
  widestPopup_ = std::max(widestPopup_, popUpWidth(popup, font));
}

bool OptionRows::isRoomBeside() const { return widestLabel_ + metrics::labelGap + widestPopup_ <= room; }

void OptionRows::add(const PopUpButton& control, QComboBox* popup) {
  popup->setFixedWidth(std::min(room, widestPopup_));
  if (isRoomBeside()) return form_.row(control, popup);
  auto* both = new QWidget(&page_);
  auto* column = new QVBoxLayout(both);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(metrics::grid);
  auto* label = new QLabel(toQString(control.label()), both);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setBuddy(popup);
  column->addWidget(label);
  column->addWidget(popup);
  form_.wide(both);
}

}  // namespace tarvo
