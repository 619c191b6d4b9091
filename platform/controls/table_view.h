// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/controls.h"
#include "platform/plist/property_list.h"

// A table as state: rows through a data source, selected rows, dragging by row numbers.
// Duty: ask the source and the delegate as the platform does. Not: moving rows, which only the source may decide.
namespace tarvo {

enum class DropOperation { on, above };

struct CellValue {
  std::string text, image;  // image: a name for Bundle::image
  std::optional<bool> checked;
  friend bool operator==(const CellValue&, const CellValue&) = default;
};

// What a drag carries: a property list per type.
struct Pasteboard {
  Dictionary content;
};

class TableView;

class TableDataSource {
 public:
  virtual ~TableDataSource() = default;
  virtual int numberOfRowsInTableView(TableView& table) = 0;  // -1: nothing to count, shown as none
  // An empty value for a row beyond the source's list.
  virtual CellValue objectValueForTableColumn(TableView& table, std::string_view column, int row) = 0;
  virtual void setObjectValue(TableView& table, bool value, std::string_view column, int row);
  virtual bool writeRows(TableView& table, const std::vector<int>& rows, Pasteboard& pasteboard);
  virtual bool validateDrop(TableView& table, const Pasteboard& pasteboard, int row, DropOperation operation);
  virtual bool acceptDrop(TableView& table, const Pasteboard& pasteboard, int row, DropOperation operation);
};

class TableDelegate {
 public:
  virtual ~TableDelegate() = default;
  virtual bool shouldSelectRow(TableView& table, int row);
  virtual void selectionDidChange(TableView& table);
};

class TableView : public Control {
 public:
  struct Column {
    std::string identifier;
    bool checkBox = false;
    bool icon = false;  // an image of 16 points stands before the text
  };
  TableView(Outlets& owner, std::string_view outlet) : Control(owner, outlet, Kind::table) {}
  void setColumns(std::vector<Column> columns);
  const std::vector<Column>& columns() const { return columns_; }
  void setDataSource(TableDataSource* source) { source_ = source; }    // not owned
  void setDelegate(TableDelegate* delegate) { delegate_ = delegate; }  // not owned
  void setAllowsMultipleSelection(bool allowed) { multiple_ = allowed; }
  bool allowsMultipleSelection() const { return multiple_; }
  void registerForDraggedTypes(std::vector<std::string> types) { types_ = std::move(types); }

  // Asks the count once and keeps the selected rows that still exist; the delegate is told when some do not.
  void reloadData();
  int reportedRows() const { return reported_; }  // as the source answered at the last reload, -1 included
  int numberOfRows() const { return reported_ < 0 ? 0 : reported_; }
  CellValue cell(std::string_view column, int row) const;  // asked at every look
  std::optional<bool> tickOf(int row) const;               // what its box shows; nothing for a row without one

  const std::vector<int>& selectedRows() const { return selected_; }  // ascending
  bool isRowSelected(int row) const;
  // The last of them, as tables of the platform answer where several are selected; -1 for none.
  int selectedRow() const { return selected_.empty() ? -1 : selected_.back(); }
  // Rows that do not exist are left out. extend: added to the selection where several may be selected.
  void selectRows(std::vector<int> rows, bool extend = false);
  void deselectAll() { selectRows({}); }
  // A row that the filter refuses is not shown and out of the user's reach, but stays a row: counts, indexes, selection
  // and values are those of the source. Asked at every look; an empty filter shows all.
  void setRowFilter(std::function<bool(int row)> filter);
  bool isRowShown(int row) const { return placeholder_.empty() && (!filter_ || filter_(row)); }
  // A text that stands in the table instead of its rows, and is heard: why there are none to be seen. They stay rows,
  // as those do that a filter refuses. "": none.
  void setPlaceholder(std::string text);
  const std::string& placeholder() const { return placeholder_; }
  void scrollRowToVisible(int row);
  int scrolledRow() const { return scrolledRow_; }

  // Asks shouldSelectRow for each row that was not selected; a refusal leaves all as it was. New rows that a filter
  // hides are left out.
  void userSelect(std::vector<int> rows);
  // One gesture: the value first, then the row is selected.
  void userTick(int row, bool on);
  // False when source or target refuse. Rows are handed over as given.
  bool userDrag(const std::vector<int>& rows, TableView& target, int row, DropOperation operation);
  // The halves of a drag, for shells that drag in steps.
  std::optional<Pasteboard> beginDrag(const std::vector<int>& rows);
  bool validatesDrop(const Pasteboard& pasteboard, int row, DropOperation operation);
  bool userDrop(const Pasteboard& pasteboard, int row, DropOperation operation);

 private:
  const Column* checkColumn() const;  // null for a table without boxes
  void setSelection(std::vector<int> rows);
  std::vector<Column> columns_;
  std::vector<std::string> types_;
  std::vector<int> selected_;
  TableDataSource* source_ = nullptr;
  TableDelegate* delegate_ = nullptr;
  std::function<bool(int row)> filter_;
  std::string placeholder_;
  int reported_ = 0, scrolledRow_ = 0;
  bool multiple_ = false;
};

}  // namespace tarvo
