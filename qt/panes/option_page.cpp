// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/option_page.h"

#include <QComboBox>
#include <QLayout>
#include <QScrollArea>
#include <vector>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/bind/form.h"
#include "qt/look/metrics.h"
#include "qt/panes/detail_options.h"
#include "qt/panes/option_rows.h"
#include "style/option_table.h"

namespace tarvo {
namespace {

std::vector<PopUpButton*> indexPopups(OptionOutlets& outlets, Direction direction) {
  std::vector<PopUpButton*> popups;
  for (std::size_t i = 0; i < indexOptions().size(); ++i) {
    if (indexOptions()[i].direction == direction) popups.push_back(&outlets.indexPopups[i]);
  }
  return popups;
}

}  // namespace

QWidget* buildOptionPage(Interface& interface, Binder& binder, Direction direction, QWidget* parent) {
  OptionOutlets& options = interface.options;
  const bool isToJapanese = direction == Direction::englishToJapanese;
  QScrollArea* area = binder.scroll(isToJapanese ? options.ejOptionView : options.jeOptionView, parent);
  area->setFocusPolicy(Qt::NoFocus);  // its pop-ups take the keyboard
  auto* page = new QWidget(area);
  Form form(binder, *page);
  OptionRows rows(form, *page);
  const std::vector<PopUpButton*> popups = indexPopups(options, direction);
  for (const PopUpButton* popup : popups) rows.measure(*popup);
  if (!isToJapanese) {
    for (const PopUpButton& popup : options.detailPopups) rows.measure(popup);
  }
  for (PopUpButton* popup : popups) rows.add(*popup, binder.popup(*popup, page));
  if (!isToJapanese) addDetailOptions(options, binder, form, rows, *page);
  form.closeRows();
  page->layout()->setContentsMargins(0, 0, 0, metrics::paneMargin);
  area->setWidget(page);
  return area;
}

}  // namespace tarvo
