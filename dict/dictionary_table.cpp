// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_table.h"

#include <limits>
#include <optional>
#include <utility>

#include "dict/dictionary_list_editing.h"
#include "dict/dictionary_reorder.h"
#include "dict/display_names.h"

namespace tarvo {
namespace {

constexpr std::string_view rowType = "row";  // what a drag carries: an array of row numbers

// The list that a table shows; nothing for an empty one and for a table of another tag.
std::optional<Names> shownNames(DictionaryListEditing& editing, const TableView& table) {
  if (table.tag() != 0 && table.tag() != 1) return std::nullopt;
  return editing.getActiveDictController(directionForTag(table.tag())).selectedDictionary();
}

std::optional<std::vector<int>> draggedRows(const Pasteboard& pasteboard) {
  const Array* numbers = pasteboard.content.array(rowType);
  if (numbers == nullptr) return std::nullopt;
  std::vector<int> rows;
  for (const PropertyList& number : *numbers) {
    if (!number.hasIntegerValue()) return std::nullopt;
    rows.push_back(number.integerValue());
  }
  return rows;
}

}  // namespace

int DictionaryTable::numberOfRowsInTableView(TableView& table) {
  const std::optional<Names> names = shownNames(editing_, table);
  return names ? static_cast<int>(names->size()) : -1;
}

CellValue DictionaryTable::objectValueForTableColumn(TableView& table, std::string_view, int row) {
  const std::optional<Names> names = shownNames(editing_, table);
  if (!names || !std::in_range<std::size_t>(row) || static_cast<std::size_t>(row) >= names->size()) return {};
  return {.text = dictionaryDisplayName((*names)[static_cast<std::size_t>(row)], texts_),
          .image = table.tag() == 0 ? "EJTD16.tif" : "JETD16.tif",
          .checked = std::nullopt};
}

bool DictionaryTable::shouldSelectRow(TableView& table, int) {
  editing_.updateButton(directionForTag(table.tag()));
  return true;
}

void DictionaryTable::selectionDidChange(TableView& table) { editing_.updateButton(directionForTag(table.tag())); }

bool DictionaryTable::writeRows(TableView&, const std::vector<int>& rows, Pasteboard& pasteboard) {
  pasteboard.content.set(rowType, Array(rows.begin(), rows.end()));
  return true;
}

bool DictionaryTable::validateDrop(TableView&, const Pasteboard& pasteboard, int, DropOperation operation) {
  return operation == DropOperation::above && pasteboard.content.contains(rowType);
}

bool DictionaryTable::acceptDrop(TableView& table, const Pasteboard& pasteboard, int row, DropOperation operation) {
  DictController& controller = editing_.getActiveDictController(directionForTag(table.tag()));
  const std::optional<Names> loaded = controller.selectedDictionary();
  const std::optional<std::vector<int>> rows = draggedRows(pasteboard);
  if (!loaded || !rows || operation != DropOperation::above) return false;
  // The rows may come from the other table, whose list is longer.
  const std::optional<DroppedRows> dropped = withRowsDropped(*loaded, *rows, row);
  if (!dropped) return false;
  for (const Direction direction : {directionForTag(table.tag()), editing_.shownDirection()}) {
    if (editing_.isRefused(editing_.mayEdit(direction))) return false;
  }

  controller.updateDictionary(dropped->names);
  table.reloadData();
  table.deselectAll();
  for (int i = 0; i < dropped->movedCount; ++i) table.selectRows({dropped->firstMoved + i}, true);
  // The tab that is shown decides what is saved, not the table.
  editing_.writeUpdateDicTarvoPlist(editing_.shownDirection());
  editing_.updateButton(editing_.shownDirection());
  return true;
}

}  // namespace tarvo
