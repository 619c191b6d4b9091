// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/dictionary_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/look/metrics.h"

namespace tarvo {
namespace {

// A button beside a list, and the key that presses it while the list has the keyboard.
struct ListButton {
  Button& control;
  QKeyCombination key = Qt::Key_unknown;
};

struct List {
  TableView& table;
  std::vector<ListButton> buttons;  // from top to bottom
  int limit = 0;                    // how many it may hold; 0: nothing is said about it
};

constexpr QKeyCombination moveUp = Qt::ALT | Qt::Key_Up, moveDown = Qt::ALT | Qt::Key_Down, removal = Qt::Key_Delete;

std::vector<List> listsOf(Interface& interface, Direction direction) {
  ListOutlets& lists = interface.lists;
  UserListOutlets& tables = interface.userLists;
  NewDictionaryOutlets& makers = interface.newDictionary;
  if (direction == Direction::englishToJapanese) {
    return {{lists.ejTDTable,
             {{lists.ejLoadDicButton},
              {lists.ejRaiseDicButton, moveUp},
              {lists.ejDownDicButton, moveDown},
              {lists.ejRemoveDicButton, removal}},
             TDMax},
            {tables.ejUDTableView, {{makers.ejUDNewButton}, {makers.ejUDFolderButton}}},
            {tables.ejUTMATableView, {{makers.ejTMANewButton}, {makers.ejTMAFolderButton}}}};
  }
  return {{lists.jeTDTable,
           {{lists.jeLoadDicButton},
            {lists.jeRaiseDicButton, moveUp},
            {lists.jeDownDicButton, moveDown},
            {lists.jeRemoveDicButton, removal}},
           TDMax},
          {tables.jeUDTableView, {{makers.jeUDNewButton}, {makers.jeUDFolderButton}}},
          {tables.jeUTMATableView, {{makers.jeTMANewButton}, {makers.jeTMAFolderButton}}}};
}

// "5 of 8", following the list.
QLabel* buildCount(QTableView& table, int limit, Binder& binder, QWidget* page) {
  auto* label = new QLabel(page);
  label->setObjectName(table.objectName() + QStringLiteral(".count"));
  const QAbstractItemModel* model = table.model();
  const auto show = [label, model, limit, text = binder.localized("CountOfLimit")] {
    QString shown = text;
    shown.replace(QLatin1String("%1"), QString::number(model->rowCount()));
    label->setText(shown.replace(QLatin1String("%2"), QString::number(limit)));
  };
  QObject::connect(model, &QAbstractItemModel::rowsInserted, label, show);
  QObject::connect(model, &QAbstractItemModel::rowsRemoved, label, show);
  show();
  return label;
}

QWidget* buildList(const List& list, Binder& binder, QWidget* parent) {
  auto* page = new QWidget(parent);
  auto* row = new QHBoxLayout(page);
  row->setContentsMargins(0, metrics::sectionGap - metrics::rowGap, 0, metrics::paneMargin);
  row->setSpacing(metrics::sectionGap - metrics::rowGap);
  QTableView* table = binder.table(list.table, page);
  row->addWidget(table, 1);
  auto* column = new QVBoxLayout;
  column->setSpacing(metrics::rowGap);
  for (const ListButton& entry : list.buttons) {
    QPushButton* button = binder.button(entry.control, page);
    column->addWidget(button);
    if (entry.key.key() == Qt::Key_unknown) continue;
    auto* key = new QShortcut(QKeySequence(entry.key), table, nullptr, nullptr, Qt::WidgetShortcut);
    QObject::connect(key, &QShortcut::activated, button, &QPushButton::click);
  }
  column->addStretch(1);
  if (list.limit > 0) column->addWidget(buildCount(*table, list.limit, binder, page));
  row->addLayout(column);
  return page;
}

}  // namespace

QWidget* buildDictionaryPage(Interface& interface, Binder& binder, Direction direction, QWidget* parent) {
  ListOutlets& lists = interface.lists;
  TabView& tab = direction == Direction::englishToJapanese ? lists.ejListTab : lists.jeListTab;
  std::vector<PageBuilder> builders;
  for (const List& list : listsOf(interface, direction)) {
    builders.emplace_back([list, &binder](QWidget* place) { return buildList(list, binder, place); });
  }
  QTabWidget* tabs = binder.tabs(tab, std::move(builders), parent);
  tabs->tabBar()->setAccessibleName(tabs->accessibleName());
  return tabs;
}

}  // namespace tarvo
