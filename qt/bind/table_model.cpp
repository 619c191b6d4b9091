// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/table_model.h"

#include <set>
#include <utility>

#include "qt/bind/binder.h"

namespace tarvo {
namespace {

constexpr const char* rowType = "row";  // what tables register for

// Where a drop meant for a parent or between rows goes, in the core's terms.
struct Target {
  int row;
  DropOperation operation;
};
Target target(int row, const QModelIndex& parent, int rows) {
  if (parent.isValid()) return {parent.row(), DropOperation::on};
  return {row < 0 ? rows : row, DropOperation::above};
}

const Pasteboard* pasteboardOf(const QMimeData* data) {
  const auto* rows = dynamic_cast<const RowsMimeData*>(data);
  return rows == nullptr ? nullptr : &rows->pasteboard();
}

}  // namespace

RowsMimeData::RowsMimeData(Pasteboard rows) : pasteboard_(std::move(rows)) { setData(rowType, QByteArray("rows")); }

TableModel::TableModel(TableView& control, Binder& binder, std::vector<QString> headers, QObject* parent)
    : QAbstractTableModel(parent), control_(control), binder_(binder), headers_(std::move(headers)) {
  rows_ = control.numberOfRows();
}

void TableModel::reload() {
  const int wanted = control_.numberOfRows();
  if (wanted > rows_) {
    beginInsertRows({}, rows_, wanted - 1);
    rows_ = wanted;
    endInsertRows();
  } else if (wanted < rows_) {
    beginRemoveRows({}, wanted, rows_ - 1);
    rows_ = wanted;
    endRemoveRows();
  }
  if (rows_ > 0 && columnCount() > 0) Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
}

void TableModel::columnsChanged() {
  beginResetModel();
  endResetModel();
}

int TableModel::checkColumn() const {
  for (std::size_t i = 0; i < control_.columns().size(); ++i) {
    if (control_.columns()[i].checkBox) return static_cast<int>(i);
  }
  return -1;
}

bool TableModel::hasIcons(int column) const { return control_.columns()[static_cast<std::size_t>(column)].icon; }

void TableModel::tick(int row) {
  const QModelIndex box = index(row, checkColumn());
  const bool isOn = data(box, Qt::CheckStateRole).toInt() == Qt::Checked;
  setData(box, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

int TableModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int TableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(control_.columns().size());
}

CellValue TableModel::cell(const QModelIndex& index) const {
  return control_.cell(control_.columns()[static_cast<std::size_t>(index.column())].identifier, index.row());
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.column() >= columnCount()) return {};
  const TableView::Column& column = control_.columns()[static_cast<std::size_t>(index.column())];
  switch (role) {
    case Qt::DisplayRole: return toQString(cell(index).text);
    case Qt::DecorationRole: return column.icon ? QVariant(binder_.icon(cell(index).image)) : QVariant();
    case Qt::CheckStateRole:
      if (const std::optional<bool> checked = cell(index).checked; column.checkBox && checked) {
        return *checked ? Qt::Checked : Qt::Unchecked;
      }
      return {};
    case Qt::AccessibleTextRole: {
      // A check box without a text is read by the name of its row.
      const QString text = toQString(cell(index).text);
      return text.isEmpty() && columnCount() > 1 && column.checkBox
                 ? data(this->index(index.row(), index.column() == 0 ? 1 : 0), Qt::DisplayRole)
                 : QVariant(text);
    }
    default: return {};
  }
}

bool TableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || !index.isValid() || index.column() != checkColumn()) return false;
  control_.userTick(index.row(), value.toInt() == Qt::Checked);
  return true;
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  const auto column = static_cast<std::size_t>(section);
  return column < headers_.size() ? QVariant(headers_[column]) : QVariant();
}

// Rows take no drops onto themselves: each half of a row then stands for the gap beside it.
Qt::ItemFlags TableModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::ItemIsDropEnabled;
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
  flags.setFlag(Qt::ItemIsUserCheckable, index.column() == checkColumn());
  return flags;
}

QStringList TableModel::mimeTypes() const { return {QString::fromLatin1(rowType)}; }

QMimeData* TableModel::mimeData(const QModelIndexList& indexes) const {
  std::set<int> rows;
  for (const QModelIndex& index : indexes) rows.insert(index.row());
  std::optional<Pasteboard> pasteboard = control_.beginDrag({rows.begin(), rows.end()});
  return pasteboard ? new RowsMimeData(std::move(*pasteboard)) : nullptr;
}

bool TableModel::canDropMimeData(const QMimeData* data, Qt::DropAction, int row, int, const QModelIndex& parent) const {
  const Pasteboard* pasteboard = pasteboardOf(data);
  const Target to = target(row, parent, rows_);
  return pasteboard != nullptr && control_.validatesDrop(*pasteboard, to.row, to.operation);
}

bool TableModel::dropMimeData(const QMimeData* data, Qt::DropAction, int row, int, const QModelIndex& parent) {
  const Pasteboard* pasteboard = pasteboardOf(data);
  const Target to = target(row, parent, rows_);
  return pasteboard != nullptr && control_.userDrop(*pasteboard, to.row, to.operation);
}

}  // namespace tarvo
