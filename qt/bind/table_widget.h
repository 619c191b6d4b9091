// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>

namespace tarvo {

class TableModel;

// The list of the window: whole rows, no grid, dragged rows with a line where they would go.
// A tick is one gesture of its own: a mouse press on a check cell selects nothing, the control does that after the
// edit.
class TableWidget : public QTableView {
 public:
  TableWidget(TableModel& model, QWidget* parent);
  TableModel& rows() const { return model_; }
  void adoptColumns();  // widths for the model's columns

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  TableModel& model_;
};

}  // namespace tarvo
