// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/detail_options.h"

#include "qt/bind/binder.h"
#include "qt/bind/form.h"
#include "qt/panes/option_rows.h"
#include "style/option_editing.h"
#include "style/option_table.h"

namespace tarvo {

void addDetailOptions(OptionOutlets& outlets, Binder& binder, Form& form, OptionRows& rows, QWidget& page) {
  for (const std::string_view heading : detailHeadings()) {
    form.heading(heading);
    for (std::size_t i = 0; i < detailOptions().size(); ++i) {
      if (detailOptions()[i].heading != heading) continue;
      PopUpButton& popup = outlets.detailPopups[i];
      rows.add(popup, binder.detailPopup(popup, &page));
    }
  }
}

}  // namespace tarvo
