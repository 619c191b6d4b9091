// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/controls/table_view.h"

#include <algorithm>
#include <utility>

namespace tarvo {

void TableDataSource::setObjectValue(TableView&, bool, std::string_view, int) {}
bool TableDataSource::writeRows(TableView&, const std::vector<int>&, Pasteboard&) { return false; }
bool TableDataSource::validateDrop(TableView&, const Pasteboard&, int, DropOperation) { return false; }
bool TableDataSource::acceptDrop(TableView&, const Pasteboard&, int, DropOperation) { return false; }
bool TableDelegate::shouldSelectRow(TableView&, int) { return true; }
void TableDelegate::selectionDidChange(TableView&) {}

namespace {

void sortUnique(std::vector<int>& rows) {
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
}

}  // namespace

void TableView::setColumns(std::vector<Column> columns) {
  columns_ = std::move(columns);
  changed(Change::items);
}

void TableView::reloadData() {
  reported_ = source_ != nullptr ? source_->numberOfRowsInTableView(*this) : 0;
  const auto beyond = std::lower_bound(selected_.begin(), selected_.end(), numberOfRows());
  const bool trimmed = beyond != selected_.end();
  selected_.erase(beyond, selected_.end());
  changed(Change::reload);
  if (trimmed && delegate_ != nullptr) delegate_->selectionDidChange(*this);
}

CellValue TableView::cell(std::string_view column, int row) const {
  if (source_ == nullptr || row < 0 || row >= numberOfRows()) return {};
  return source_->objectValueForTableColumn(const_cast<TableView&>(*this), column, row);
}

const TableView::Column* TableView::checkColumn() const {
  const auto found = std::ranges::find(columns_, true, &Column::checkBox);
  return found != columns_.end() ? &*found : nullptr;
}

std::optional<bool> TableView::tickOf(int row) const {
  const Column* column = checkColumn();
  return column != nullptr ? cell(column->identifier, row).checked : std::nullopt;
}

bool TableView::isRowSelected(int row) const { return std::ranges::binary_search(selected_, row); }

void TableView::setSelection(std::vector<int> rows) {
  if (rows == selected_) return;
  selected_ = std::move(rows);
  changed(Change::value);
  if (delegate_ != nullptr) delegate_->selectionDidChange(*this);
}

void TableView::selectRows(std::vector<int> rows, bool extend) {
  std::erase_if(rows, [this](int row) { return row < 0 || row >= numberOfRows(); });
  if (!multiple_ && rows.size() > 1) rows.erase(rows.begin(), rows.end() - 1);
  if (extend && multiple_) rows.insert(rows.end(), selected_.begin(), selected_.end());
  sortUnique(rows);
  setSelection(std::move(rows));
}

void TableView::setPlaceholder(std::string text) {
  if (text == placeholder_) return;
  placeholder_ = std::move(text);
  changed(Change::filter);
}

void TableView::setRowFilter(std::function<bool(int row)> filter) {
  filter_ = std::move(filter);
  changed(Change::filter);
}

void TableView::scrollRowToVisible(int row) {
  scrolledRow_ = row;
  changed(Change::scroll);
}

void TableView::userSelect(std::vector<int> rows) {
  if (!isEnabled()) return;
  sortUnique(rows);
  const std::vector<int> before = selected_;
  const auto isNew = [&](int row) { return !std::binary_search(before.begin(), before.end(), row); };
  std::erase_if(rows, [&](int row) { return isNew(row) && !isRowShown(row); });
  for (const int row : rows) {
    if (isNew(row) && delegate_ != nullptr && !delegate_->shouldSelectRow(*this, row)) {
      changed(Change::value);
      return;
    }
  }
  selectRows(std::move(rows));
}

void TableView::userTick(int row, bool on) {
  if (!isEnabled() || source_ == nullptr || row < 0 || row >= numberOfRows() || !isRowShown(row)) return;
  const Column* column = checkColumn();
  if (column == nullptr) return;
  source_->setObjectValue(*this, on, column->identifier, row);
  if (!isRowSelected(row)) userSelect({row});
}

std::optional<Pasteboard> TableView::beginDrag(const std::vector<int>& rows) {
  Pasteboard pasteboard;
  if (!isEnabled() || source_ == nullptr || !source_->writeRows(*this, rows, pasteboard)) return std::nullopt;
  return pasteboard;
}

bool TableView::validatesDrop(const Pasteboard& pasteboard, int row, DropOperation operation) {
  const bool accepted = std::any_of(types_.begin(), types_.end(),
                                    [&](const std::string& type) { return pasteboard.content.contains(type); });
  return accepted && isEnabled() && source_ != nullptr && source_->validateDrop(*this, pasteboard, row, operation);
}

bool TableView::userDrop(const Pasteboard& pasteboard, int row, DropOperation operation) {
  return validatesDrop(pasteboard, row, operation) && source_->acceptDrop(*this, pasteboard, row, operation);
}

bool TableView::userDrag(const std::vector<int>& rows, TableView& target, int row, DropOperation operation) {
  const std::optional<Pasteboard> pasteboard = beginDrag(rows);
  return pasteboard && target.userDrop(*pasteboard, row, operation);
}

}  // namespace tarvo
