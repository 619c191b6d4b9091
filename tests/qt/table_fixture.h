// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QTableView>
#include <string>
#include <vector>

#include "qt/bind/in_step.h"
#include "qt/bind/table_widget.h"
#include "tests/qt/bound_controls.h"

namespace tarvo::test {

// Rows of a name and a check box, with a note of each call.
class Rows : public TableDataSource, public TableDelegate {
 public:
  int numberOfRowsInTableView(TableView&) override { return names.empty() ? -1 : static_cast<int>(names.size()); }
  CellValue objectValueForTableColumn(TableView&, std::string_view column, int row) override {
    if (row >= static_cast<int>(names.size())) return {};
    if (column == "on") return {.checked = on[static_cast<std::size_t>(row)]};
    return {.text = names[static_cast<std::size_t>(row)], .image = "EJTD16.tif"};
  }
  void setObjectValue(TableView&, bool value, std::string_view, int row) override {
    on[static_cast<std::size_t>(row)] = value;
    calls.push_back("tick " + std::to_string(row));
  }
  bool writeRows(TableView&, const std::vector<int>& rows, Pasteboard& pasteboard) override {
    Array numbers;
    for (const int row : rows) numbers.emplace_back(row);
    pasteboard.content.set("row", std::move(numbers));
    return true;
  }
  bool validateDrop(TableView&, const Pasteboard&, int, DropOperation operation) override {
    return operation == DropOperation::above;
  }
  bool acceptDrop(TableView&, const Pasteboard& pasteboard, int row, DropOperation) override {
    std::string call = "drop";
    for (const PropertyList& number : *pasteboard.content.array("row")) {
      call += " " + std::to_string(number.integerValue());
    }
    calls.push_back(call + " above " + std::to_string(row));
    return true;
  }
  bool shouldSelectRow(TableView&, int row) override { return row != refused; }
  void selectionDidChange(TableView& table) override {
    calls.push_back("selected " + std::to_string(table.selectedRow()));
  }

  std::vector<std::string> names{"a", "b", "c", "d"};
  std::vector<bool> on = std::vector<bool>(100);
  std::vector<std::string> calls;
  int refused = -1;
};

struct TableBinding : testing::Test, BoundControls {
  TableBinding() {
    for (TableView* control : {&outlets.table, &outlets.otherTable}) {
      control->setColumns({{.identifier = "name", .icon = true}});
      control->setDataSource(&rows);
      control->setDelegate(&rows);
      control->setAllowsMultipleSelection(true);
      control->registerForDraggedTypes({"row"});
      control->reloadData();
    }
  }
  QTableView& build(int height = 200) { return shown(binder.table(outlets.table, &window), 300, height); }
  QPoint middle(QTableView& view, int row, int column = 0) {
    return view.visualRect(view.model()->index(row, column)).center();
  }
  void withBoxes() { outlets.table.setColumns({{.identifier = "on", .checkBox = true}, {.identifier = "name"}}); }
  std::string inStep() { return outOfStep(binder.registry()); }
  Rows rows;
};

}  // namespace tarvo::test
