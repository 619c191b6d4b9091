// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>
#include <functional>

namespace tarvo {

class IconedDelegate;
class TableModel;

// The list of the window: whole rows, no grid, dragged rows with a line where they would go, also behind the last row.
// A tick is one gesture of its own: a mouse press on a check box selects nothing, the control does that after the
// edit.
class TableWidget : public QTableView {
 public:
  TableWidget(TableModel& model, QWidget* parent);
  TableModel& rows() const { return model_; }
  void adoptColumns();  // widths and drawing for the model's columns
  // Shows the rows that the call names and hides the others, 10,000 of them within a few milliseconds.
  void showRows(const std::function<bool(int row)>& isShown);
  // What stands in the list while it has no rows.
  void setEmptyText(const QString& text);
  // What stands in it instead of its rows, all of which are hidden; "" for none.
  void setPlaceholder(const QString& text);

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool isOnBox(const QModelIndex& index, const QPoint& place) const;
  void markEnd(bool marked);
  QString textInstead() const;  // of rows; "" while there are any
  void tellTextInstead();
  void paintTextInstead(QPainter& painter);
  TableModel& model_;
  IconedDelegate* iconed_;
  QString emptyText_, placeholder_;
  bool isEndMarked_ = false;  // a drag would go behind the last row
};

}  // namespace tarvo
