// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/memory_hand.h"

#include <algorithm>

#include "app/toolbar.h"
#include "platform/controls/windows.h"

namespace tarvo {

namespace {

void requireRow(const TableView& table, int row) {
  if (row < 0 || row >= table.numberOfRows()) {
    throw NotReachable(table.name() + " has no row " + std::to_string(row));
  }
  if (!table.isRowShown(row)) throw NotReachable(table.name() + " does not show row " + std::to_string(row));
}

}  // namespace

void MemoryHand::press(Button& button) { button.userPress(); }

void MemoryHand::choose(PopUpButton& popup, int index) {
  if (!popup.userChoose(index)) {
    throw NotReachable(popup.name() + " has no item " + std::to_string(index) + " that can be chosen");
  }
}

void MemoryHand::choose(MenuItem& item) {
  if (!item.userChoose()) throw NotReachable(item.name() + " cannot be chosen now");
}

void MemoryHand::click(SegmentedControl& control, int segment) {
  if (!control.userClick(segment)) {
    throw NotReachable(control.name() + " has no segment " + std::to_string(segment) + " that can be clicked");
  }
}

void MemoryHand::selectPage(TabView& tab, int page) {
  if (page < 0 || page >= static_cast<int>(tab.pages().size())) {
    throw NotReachable(tab.name() + " has no page " + std::to_string(page));
  }
  tab.userSelect(page);
}

void MemoryHand::check(CheckBox& box, bool on) {
  if (box.state() != on) box.userCheck(on);
}

void MemoryHand::type(TextField& field, std::string_view text) { field.userType(std::string(text)); }

void MemoryHand::tick(TableView& table, int row, bool on) {
  requireRow(table, row);
  if (table.tickOf(row) != on) return table.userTick(row, on);
  if (!table.isRowSelected(row)) table.userSelect({row});
}

void MemoryHand::select(TableView& table, const std::vector<int>& rows) {
  for (const int row : rows) requireRow(table, row);
  if (rows.size() > 1 && !table.allowsMultipleSelection()) {
    throw NotReachable(table.name() + " selects one row at a time");
  }
  table.userSelect(rows);
}

void MemoryHand::drag(TableView& table, const std::vector<int>& rows, TableView& target, int row,
                      DropOperation operation) {
  table.userDrag(rows, target, row, operation);
}

void MemoryHand::move(Window& window, float x, float y) { window.userMove(x, y); }

void MemoryHand::close(Window& window) {
  if (!window.close) throw NotReachable(window.name() + " has no close box");
  window.userClose();
}

void MemoryHand::showToolbar(Toolbar& toolbar, bool shown) {
  if (toolbar.isShown() != shown) toolbar.userShow(shown);
}

void MemoryHand::orderToolbar(Toolbar& toolbar, const std::vector<std::string>& identifiers) {
  for (const std::string& identifier : identifiers) {
    if (toolbar.item(identifier) == nullptr) throw NotReachable("the toolbar has no item " + identifier);
  }
  toolbar.userOrder(identifiers);
}

}  // namespace tarvo
