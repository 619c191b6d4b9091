// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/table_widget.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include "qt/bind/iconed_delegate.h"
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

TableWidget::TableWidget(TableModel& model, QWidget* parent)
    : QTableView(parent), model_(model), iconed_(new IconedDelegate(this)) {
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
  horizontalHeader()->setMinimumSectionSize(1);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setResizeContentsPrecision(0);  // check boxes are all alike
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
    setItemDelegateForColumn(i, model_.hasIcons(i) ? iconed_ : nullptr);
  }
}

void TableWidget::showRows(const std::function<bool(int row)>& isShown) {
  // A header that repaints works out the places of all rows anew for each row that comes or goes.
  verticalHeader()->setUpdatesEnabled(false);
  for (int row = 0; row < model_.rowCount(); ++row) {
    if (isRowHidden(row) == isShown(row)) setRowHidden(row, !isShown(row));
  }
  verticalHeader()->setUpdatesEnabled(true);
}

void TableWidget::setEmptyText(const QString& text) {
  emptyText_ = text;
  connect(&model_, &QAbstractItemModel::rowsInserted, this, &TableWidget::tellTextInstead);
  connect(&model_, &QAbstractItemModel::rowsRemoved, this, &TableWidget::tellTextInstead);
  tellTextInstead();
}

void TableWidget::setPlaceholder(const QString& text) {
  if (placeholder_ == text) return;
  placeholder_ = text;
  tellTextInstead();
}

QString TableWidget::textInstead() const {
  if (!placeholder_.isEmpty()) return placeholder_;
  return model_.rowCount() == 0 ? emptyText_ : QString();
}

// Who cannot see the text hears it.
void TableWidget::tellTextInstead() {
  setAccessibleDescription(textInstead());
  viewport()->update();
}

QItemSelectionModel::SelectionFlags TableWidget::selectionCommand(const QModelIndex& index, const QEvent* event) const {
  const auto* mouse = dynamic_cast<const QMouseEvent*>(event);
  if (mouse != nullptr && isOnBox(index, mouse->position().toPoint())) return QItemSelectionModel::NoUpdate;
  return QTableView::selectionCommand(index, event);
}

bool TableWidget::isOnBox(const QModelIndex& index, const QPoint& place) const {
  if (!index.isValid() || index.column() != model_.checkColumn()) return false;
  QStyleOptionViewItem cell;
  initViewItemOption(&cell);
  cell.rect = visualRect(index);
  cell.features |= QStyleOptionViewItem::HasCheckIndicator;
  return style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &cell, this).contains(place);
}

void TableWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && model_.checkColumn() >= 0 && currentIndex().isValid()) {
    if (!isRowHidden(currentIndex().row())) model_.tick(currentIndex().row());
    return;
  }
  QTableView::keyPressEvent(event);
}

void TableWidget::dragMoveEvent(QDragMoveEvent* event) {
  QTableView::dragMoveEvent(event);
  markEnd(event->isAccepted() && dropIndicatorPosition() == OnViewport);
}

void TableWidget::dragLeaveEvent(QDragLeaveEvent* event) {
  markEnd(false);
  QTableView::dragLeaveEvent(event);
}

// The table's own handling would move the rows of the model itself.
void TableWidget::dropEvent(QDropEvent* event) {
  markEnd(false);
  QAbstractItemView::dropEvent(event);
}

void TableWidget::markEnd(bool marked) {
  if (isEndMarked_ == marked) return;
  isEndMarked_ = marked;
  viewport()->update();
}

// The base marks gaps beside rows only.
void TableWidget::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  QPainter painter(viewport());
  paintTextInstead(painter);
  if (!isEndMarked_) return;
  QStyleOption mark;
  mark.initFrom(this);
  mark.rect = QRect(0, verticalHeader()->length() - verticalOffset(), viewport()->width() - 1, 0);
  style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &mark, &painter, this);
}

void TableWidget::paintTextInstead(QPainter& painter) {
  const QString text = textInstead();
  if (text.isEmpty()) return;
  const QRect place =
      viewport()->rect().adjusted(metrics::paneMargin, metrics::rowGap, -metrics::paneMargin, -metrics::rowGap);
  style()->drawItemText(&painter, place, Qt::AlignCenter | Qt::TextWordWrap, palette(), isEnabled(), text,
                        QPalette::PlaceholderText);
}

}  // namespace tarvo
