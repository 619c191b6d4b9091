// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/direction_page.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/look/metrics.h"
#include "qt/panes/dictionary_page.h"
#include "qt/panes/option_page.h"
#include "qt/panes/popup_width.h"

namespace tarvo {

QWidget* buildDirectionPage(Interface& interface, Binder& binder, Direction direction, QWidget* parent) {
  const bool isToJapanese = direction == Direction::englishToJapanese;
  OptionOutlets& options = interface.options;
  PopUpButton& choice = isToJapanese ? options.ejEditPopup : options.jeEditPopup;

  auto* page = new QWidget(parent);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(0, metrics::sectionGap - metrics::rowGap, 0, 0);
  column->setSpacing(metrics::sectionGap - metrics::rowGap);

  auto* row = new QHBoxLayout;
  row->setSpacing(metrics::labelGap);
  auto* label = new QLabel(toQString(choice.label()), page);
  QComboBox* popup = binder.popup(choice, page);
  popup->setFixedWidth(popUpWidth(choice, page->fontMetrics()));
  label->setBuddy(popup);
  row->addWidget(label);
  row->addWidget(popup);
  row->addStretch(1);
  column->addLayout(row);

  column->addWidget(binder.pages(isToJapanese ? options.ejEditTab : options.jeEditTab,
                                 {[&interface, &binder, direction](QWidget* place) {
                                    return buildDictionaryPage(interface, binder, direction, place);
                                  },
                                  [&interface, &binder, direction](QWidget* place) {
                                    return buildOptionPage(interface, binder, direction, place);
                                  }},
                                 page),
                    1);
  return page;
}

}  // namespace tarvo
