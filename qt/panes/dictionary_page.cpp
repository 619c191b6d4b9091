// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/dictionary_page.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/look/metrics.h"

namespace tarvo {
namespace {

struct List {
  TableView& table;
  std::vector<Button*> buttons;  // from top to bottom
};

List technicalDictionaries(ListOutlets& outlets, Direction direction) {
  if (direction == Direction::englishToJapanese) {
    return {outlets.ejTDTable, {&outlets.ejRaiseDicButton, &outlets.ejDownDicButton, &outlets.ejRemoveDicButton}};
  }
  return {outlets.jeTDTable, {&outlets.jeRaiseDicButton, &outlets.jeDownDicButton, &outlets.jeRemoveDicButton}};
}

QWidget* buildList(const List& list, Binder& binder, QWidget* parent) {
  auto* page = new QWidget(parent);
  auto* row = new QHBoxLayout(page);
  row->setContentsMargins(0, metrics::sectionGap - metrics::rowGap, 0, metrics::paneMargin);
  row->setSpacing(metrics::sectionGap - metrics::rowGap);
  row->addWidget(binder.table(list.table, page), 1);
  auto* column = new QVBoxLayout;
  column->setSpacing(metrics::rowGap);
  for (Button* button : list.buttons) column->addWidget(binder.button(*button, page));
  column->addStretch(1);
  row->addLayout(column);
  return page;
}

}  // namespace

QWidget* buildDictionaryPage(Interface& interface, Binder& binder, Direction direction, QWidget* parent) {
  ListOutlets& lists = interface.lists;
  TabView& tab = direction == Direction::englishToJapanese ? lists.ejListTab : lists.jeListTab;
  QTabWidget* tabs = binder.tabs(tab, {[&lists, &binder, direction](QWidget* place) {
                                   return buildList(technicalDictionaries(lists, direction), binder, place);
                                 }},
                                 parent);
  tabs->tabBar()->setAccessibleName(tabs->accessibleName());
  return tabs;
}

}  // namespace tarvo
