// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QHeaderView>
#include <QItemSelectionModel>
#include <algorithm>
#include <utility>

#include "qt/bind/binder.h"
#include "qt/bind/control_view.h"
#include "qt/bind/table_model.h"
#include "qt/bind/table_widget.h"

namespace tarvo {
namespace {

std::vector<int> chosenRows(const QItemSelectionModel& selection) {
  std::vector<int> rows;
  for (const QModelIndex& index : selection.selectedRows()) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  return rows;
}

class TableControlView : public ControlView {
 public:
  TableControlView(TableView& control, TableWidget& table, Registry& registry)
      : ControlView(control, table, registry), control_(control), table_(table) {
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
      if (syncing_) return;
      control_.userSelect(chosenRows(*table_.selectionModel()));
      writeSelection();  // a refused selection is taken back
    });
    TableControlView::show(Control::Change::value);
  }

 protected:
  void show(Control::Change change) override {
    const bool outer = std::exchange(syncing_, true);
    showCommonState();
    if (change == Control::Change::items) {
      table_.rows().columnsChanged();
      table_.adoptColumns();
    }
    if (change != Control::Change::filter) table_.rows().reload();
    table_.setPlaceholder(toQString(control_.placeholder()));
    table_.showRows([this](int row) { return control_.isRowShown(row); });
    table_.setSelectionMode(control_.allowsMultipleSelection() ? QAbstractItemView::ExtendedSelection
                                                               : QAbstractItemView::SingleSelection);
    syncing_ = outer;
    writeSelection();
    if (change == Control::Change::scroll) table_.scrollTo(table_.rows().index(control_.scrolledRow(), 0));
  }

 private:
  void writeSelection() {
    QItemSelectionModel& model = *table_.selectionModel();
    const std::vector<int>& rows = control_.selectedRows();
    if (chosenRows(model) == rows) return;
    const bool outer = std::exchange(syncing_, true);
    QItemSelection selection;
    for (const int row : rows) {
      selection.select(table_.rows().index(row, 0), table_.rows().index(row, table_.rows().columnCount() - 1));
    }
    model.select(selection, QItemSelectionModel::ClearAndSelect);
    // The keyboard goes on from the selection.
    if (!rows.empty() && !std::binary_search(rows.begin(), rows.end(), model.currentIndex().row())) {
      model.setCurrentIndex(table_.rows().index(rows.front(), 0), QItemSelectionModel::NoUpdate);
    }
    syncing_ = outer;
  }

  TableView& control_;
  TableWidget& table_;
  bool syncing_ = false;
};

}  // namespace

QTableView* Binder::table(TableView& control, QWidget* parent, const std::vector<QString>& headers) {
  auto* model = new TableModel(control, *this, headers, nullptr);
  auto* table = new TableWidget(*model, parent);
  model->setParent(table);
  table->horizontalHeader()->setVisible(!headers.empty());
  new TableControlView(control, *table, registry_);
  return table;
}

}  // namespace tarvo
