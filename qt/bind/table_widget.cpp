// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/table_widget.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include "qt/bind/table_model.h"
#include "qt/look/metrics.h"

namespace tarvo {
namespace {

// Titles are as wide as they are drawn; the base measures them in bold, for which it loads another font file.
class TitleRow : public QHeaderView {
 public:
  explicit TitleRow(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

 protected:
  QSize sectionSizeFromContents(int section) const override {
    const QString title = model()->headerData(section, Qt::Horizontal).toString();
    const int width = fontMetrics().horizontalAdvance(title) + 2 * metrics::fieldPadding;
    return {width, metrics::rowHeight(fontMetrics())};
  }
};

}  // namespace

TableWidget::TableWidget(TableModel& model, QWidget* parent) : QTableView(parent), model_(model) {
  setHorizontalHeader(new TitleRow(this));
  setModel(&model);
  setShowGrid(false);
  setTabKeyNavigation(false);  // Tab leaves the list
  setWordWrap(false);
  setTextElideMode(Qt::ElideMiddle);
  setSelectionBehavior(SelectRows);
  setHorizontalScrollMode(ScrollPerPixel);
  setEditTriggers(NoEditTriggers);
  setIconSize({metrics::cellIcon, metrics::cellIcon});
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(metrics::rowHeight(fontMetrics()));
  verticalHeader()->setMinimumSectionSize(1);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  setDragDropMode(DragDrop);
  setDefaultDropAction(Qt::MoveAction);
  setDragDropOverwriteMode(false);  // drops go between rows
  adoptColumns();
}

void TableWidget::adoptColumns() {
  const int boxes = model_.checkColumn();
  for (int i = 0; i < model_.columnCount(); ++i) {
    const bool isLast = i + 1 == model_.columnCount();
    horizontalHeader()->setSectionResizeMode(i, isLast       ? QHeaderView::Stretch
                                                : i == boxes ? QHeaderView::ResizeToContents
                                                             : QHeaderView::Interactive);
  }
}

QItemSelectionModel::SelectionFlags TableWidget::selectionCommand(const QModelIndex& index, const QEvent* event) const {
  const bool isOnBox = index.isValid() && index.column() == model_.checkColumn();
  if (isOnBox && dynamic_cast<const QMouseEvent*>(event) != nullptr) return QItemSelectionModel::NoUpdate;
  return QTableView::selectionCommand(index, event);
}

void TableWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && model_.checkColumn() >= 0 && currentIndex().isValid()) {
    model_.tick(currentIndex().row());
    return;
  }
  QTableView::keyPressEvent(event);
}

// The table's own handling would move the rows of the model itself.
void TableWidget::dropEvent(QDropEvent* event) { QAbstractItemView::dropEvent(event); }

}  // namespace tarvo
