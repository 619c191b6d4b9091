// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/controls/table_view.h"

namespace tarvo {

class DictionaryListEditing;
class Texts;

// Data source and delegate of the two technical dictionary tables: what a row shows, and reordering by dragging.
// Answers -1 rows for an empty list and for a table of another tag.
inline constexpr const char* dictionaryColumn = "name";  // the one column of each list of dictionaries in the pane

class DictionaryTable : public TableDataSource, public TableDelegate {
 public:
  DictionaryTable(DictionaryListEditing& editing, const Texts& texts) : editing_(editing), texts_(texts) {}

  int numberOfRowsInTableView(TableView& table) override;
  CellValue objectValueForTableColumn(TableView& table, std::string_view column, int row) override;
  bool writeRows(TableView& table, const std::vector<int>& rows, Pasteboard& pasteboard) override;
  bool validateDrop(TableView& table, const Pasteboard& pasteboard, int row, DropOperation operation) override;
  bool acceptDrop(TableView& table, const Pasteboard& pasteboard, int row, DropOperation operation) override;
  bool shouldSelectRow(TableView& table, int row) override;
  void selectionDidChange(TableView& table) override;

 private:
  DictionaryListEditing& editing_;
  const Texts& texts_;
};

}  // namespace tarvo
