// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/sheets/earlier_styles_window.h"

#include <QBoxLayout>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTableView>

#include "app/history/earlier_styles_panel.h"
#include "qt/bind/binder.h"
#include "qt/look/metrics.h"
#include "qt/sheets/sheet_parts.h"

namespace tarvo {
namespace {

constexpr int shownRows = 7;                    // at first
constexpr int shownLines = 6;                   // of what restoring would change; more are reached by scrolling
constexpr int listWidth = 46, narrowList = 24;  // in heights of a line: at first, and at least

QTableView* buildList(TableView& control, Binder& binder, QWidget* parent) {
  QTableView* list = binder.table(
      control, parent,
      {binder.localized("History.time"), binder.localized("History.kind"), binder.localized("History.changed")});
  const QFontMetrics letters = list->fontMetrics();
  list->setMinimumSize(narrowList * letters.height(),
                       (shownRows + 1) * metrics::rowHeight(letters) + 2 * metrics::listPadding);
  list->horizontalHeader()->resizeSection(
      0, letters.horizontalAdvance(QStringLiteral("0000-00-00 00:00:00 ")) + 2 * metrics::fieldPadding);
  list->horizontalHeader()->resizeSection(
      1, letters.horizontalAdvance(binder.localized("History.kind.other")) + 4 * metrics::fieldPadding);
  return list;
}

QWidget* buildEffect(TextField& control, Binder& binder, QWidget* parent) {
  auto* area = new QScrollArea(parent);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  QLabel* text = binder.text(control, area);
  text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  area->setWidget(text);
  area->setMinimumHeight(shownLines * text->fontMetrics().lineSpacing());
  return area;
}

}  // namespace

QDialog* buildEarlierStyles(EarlierStylesOutlets& outlets, Binder& binder, QWidget* parent) {
  auto* dialog = new QDialog(parent);
  binder.window(outlets.earlierStylesWindow, *dialog);
  auto* rows = new QVBoxLayout(dialog);
  rows->addWidget(buildList(outlets.earlierStylesTable, binder, dialog), 1);
  rows->addWidget(buildEffect(outlets.earlierStylesText, binder, dialog));
  auto* foot = new QHBoxLayout;
  foot->addWidget(binder.button(outlets.earlierStylesCloseButton, dialog));
  foot->addStretch(1);
  foot->addWidget(binder.button(outlets.restoreStyleButton, dialog));
  QPushButton* all = binder.button(outlets.restoreAllButton, dialog);
  all->setDefault(true);
  foot->addWidget(all);
  rows->addLayout(foot);
  beginWide(*dialog, listWidth * dialog->fontMetrics().height());
  return dialog;
}

}  // namespace tarvo
