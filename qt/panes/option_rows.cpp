// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/option_rows.h"

#include <QComboBox>
#include <QLabel>
#include <QWidget>
#include <algorithm>

#include "app/window_geometry.h"
#include "platform/controls.h"
#include "qt/bind/binder.h"
#include "qt/bind/form.h"
#include "qt/look/metrics.h"

namespace tarvo {
namespace {

constexpr int room = static_cast<int>(paneSizes[0].width) - 2 * metrics::paneMargin - 2 * metrics::scrollBarExtent;
constexpr int popUpSides = 2 * metrics::fieldPadding + metrics::popUpArrowWidth;  // of a pop-up, around its title

}  // namespace

OptionRows::OptionRows(Form& form, QWidget& page) : form_(form), page_(page), font_(page.font()) {}

void OptionRows::measure(const std::vector<PopUpButton*>& popups) {
  for (const PopUpButton* popup : popups) {
    widestLabel_ = std::max(widestLabel_, font_.horizontalAdvance(toQString(popup->label())));
    for (const PopUpButton::Item& item : popup->items()) {
      widestTitle_ = std::max(widestTitle_, font_.horizontalAdvance(toQString(item.title)));
    }
  }
}

bool OptionRows::isRoomBeside() const {
  return widestLabel_ + metrics::labelGap + widestTitle_ + popUpSides <= room;
}

void OptionRows::add(const PopUpButton& control, QComboBox* popup) {
  popup->setFixedWidth(std::min(room, metrics::onGrid(widestTitle_ + popUpSides)));
  if (isRoomBeside()) return form_.row(control, popup);
  auto* label = new QLabel(toQString(control.label()), &page_);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setBuddy(popup);
  form_.wide(label);
  form_.wide(popup);
}

}  // namespace tarvo
