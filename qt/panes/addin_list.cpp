// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/addin_list.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/bind/binder.h"
#include "qt/bind/table_widget.h"
#include "qt/look/metrics.h"
#include "qt/panes/quiet_text.h"

namespace tarvo {
namespace {

constexpr int nameWidth = 300;  // of the column with the application's name; it can be dragged
constexpr int leastRows = 4;    // that large letters leave, below the titles
constexpr int infoLines = 3;    // a path, a gap, a state

QTableView* buildTable(const AddinList& list, Binder& binder, QWidget* pane) {
  std::vector<QString> headers;
  headers.reserve(list.headers.size());
  for (const std::string_view key : list.headers) headers.push_back(binder.localized(key));
  QTableView* table = binder.table(list.table, pane, headers);
  dynamic_cast<TableWidget&>(*table).setEmptyText(binder.localized(list.whenEmpty));
  table->horizontalHeader()->resizeSection(1, nameWidth);
  table->setMinimumHeight((leastRows + 1) * metrics::rowHeight(table->fontMetrics()) + 2 * metrics::listPadding);
  return table;
}

QLayout* buildButtons(const AddinList& list, Binder& binder, QWidget* pane) {
  auto* column = new QVBoxLayout;
  column->setSpacing(metrics::rowGap);
  for (Button* button : list.buttons) column->addWidget(binder.button(*button, pane));
  column->addStretch(1);
  return column;
}

// Room for all its lines, so that the list above keeps its height. A failure takes one line of the state and leaves the
// rest to its reason.
QWidget* buildInfo(const AddinList& list, Binder& binder, QWidget* pane) {
  auto* box = new QWidget(pane);
  auto* lines = new QVBoxLayout(box);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(0);
  for (TextField* field : {&list.info, &list.reason}) {
    QLabel* label = binder.text(*field, box);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lines->addWidget(label);
  }
  lines->addStretch(1);
  box->setMinimumHeight(infoLines * box->fontMetrics().lineSpacing());
  return box;
}

}  // namespace

void buildAddinList(const AddinList& list, Binder& binder, QWidget* pane, QVBoxLayout& column) {
  column.addWidget(quietText(binder.localized(list.introduction), pane));
  auto* row = new QHBoxLayout;
  row->setSpacing(metrics::sectionGap - metrics::rowGap);
  row->addWidget(buildTable(list, binder, pane), 1);
  row->addLayout(buildButtons(list, binder, pane));
  column.addLayout(row, 1);
  column.addWidget(buildInfo(list, binder, pane));
}

}  // namespace tarvo
