// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/sheets/picker_window.h"

#include <QBoxLayout>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTableView>

#include "dict/tech_dic_controller.h"
#include "qt/bind/binder.h"
#include "qt/look/fonts.h"
#include "qt/look/metrics.h"
#include "qt/sheets/sheet_parts.h"

namespace tarvo {
namespace {

constexpr int shownRows = 12;  // at first; the window can be made larger
constexpr int listWidth = 32;  // in heights of a line

QLineEdit* buildFilter(PickerOutlets& outlets, Binder& binder, QWidget* page) {
  QLineEdit* filter = binder.field(outlets.filterField, page);
  filter->setClearButtonEnabled(true);
  filter->setPlaceholderText(filter->accessibleName());
  return filter;
}

QTableView* buildList(PickerOutlets& outlets, Binder& binder, QWidget* page) {
  QTableView* list = binder.table(outlets.techDicTable, page);
  const int row = metrics::rowHeight(list->fontMetrics());
  list->setMinimumSize(listWidth * list->fontMetrics().height(), shownRows * row + 2 * metrics::listPadding);
  return list;
}

QLabel* heading(TextField& title, Binder& binder, QWidget* parent) {
  QLabel* label = binder.text(title, parent);
  label->setFont(headingFont(label->font()));
  label->setWordWrap(false);
  return label;
}

// What can be done in a folder of the user's, below its title.
void addFolder(QBoxLayout& column, Binder& binder, QDialog* dialog, TextField& title, Button& make, Button& open) {
  column.addWidget(heading(title, binder, dialog));
  column.addWidget(binder.button(make, dialog));
  column.addWidget(binder.button(open, dialog));
  column.addSpacing(metrics::sectionGap - metrics::rowGap);
}

QLayout* buildListActions(PickerOutlets& outlets, Binder& binder, QWidget* page) {
  auto* row = new QHBoxLayout;
  row->addWidget(binder.button(outlets.selectShownButton, page));
  row->addWidget(binder.button(outlets.selectNoneButton, page));
  row->addWidget(binder.button(outlets.openTDFolderButton, page));
  QLabel* room = binder.text(outlets.roomText, page);
  room->setWordWrap(false);
  room->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  row->addWidget(room, 1);
  return row;
}

// The keyboard goes from the filter into the list.
void leadDown(QLineEdit& filter, QTableView& list) {
  auto* down = new QShortcut(Qt::Key_Down, &filter, nullptr, nullptr, Qt::WidgetShortcut);
  QObject::connect(down, &QShortcut::activated, &list, [&list] { list.setFocus(Qt::TabFocusReason); });
}

// The list of dictionaries and what is done with it.
QWidget* buildPage(PickerOutlets& outlets, Binder& binder, QWidget* parent) {
  auto* page = new QWidget(parent);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(heading(outlets.TDTitleField, binder, page));
  QLineEdit* filter = buildFilter(outlets, binder, page);
  column->addWidget(filter);
  QTableView* list = buildList(outlets, binder, page);
  column->addWidget(list, 1);
  column->addLayout(buildListActions(outlets, binder, page));
  leadDown(*filter, *list);
  return page;
}

}  // namespace

QDialog* buildPicker(PickerOutlets& outlets, Binder& binder, QWidget* parent) {
  auto* dialog = new QDialog(parent);
  binder.window(outlets.myWindow, *dialog);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(metrics::sectionGap);
  const PageBuilder page = [&outlets, &binder](QWidget* place) { return buildPage(outlets, binder, place); };
  columns->addWidget(binder.pages(outlets.myTabView, {page}, dialog), 1);
  auto* folders = new QVBoxLayout;
  folders->setSpacing(metrics::rowGap);
  addFolder(*folders, binder, dialog, outlets.UDTitleField, outlets.newUDButton, outlets.openUDFolderButton);
  addFolder(*folders, binder, dialog, outlets.uTMATitleField, outlets.newTMAButton, outlets.openTMAFolderButton);
  folders->addStretch(1);
  columns->addLayout(folders);
  auto* rows = new QVBoxLayout(dialog);
  rows->addLayout(columns, 1);
  rows->addSpacing(metrics::sectionGap - metrics::rowGap);
  rows->addLayout(buildFoot(&outlets.cancelButton, outlets.okButton, binder, dialog));
  return dialog;
}

}  // namespace tarvo
