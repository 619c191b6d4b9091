// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/program.h"
#include "console/script/memory_windows.h"
#include "tests/soak/list_edits.h"

// Edits by hand.
namespace tarvo::test {

namespace {

struct Half {
  TableView& table;
  Button &load, &raise, &lower, &remove;
};

Half halfOf(ListOutlets& lists, int direction) {
  if (direction == 0) {
    return {lists.ejTDTable, lists.ejLoadDicButton, lists.ejRaiseDicButton, lists.ejDownDicButton,
            lists.ejRemoveDicButton};
  }
  return {lists.jeTDTable, lists.jeLoadDicButton, lists.jeRaiseDicButton, lists.jeDownDicButton,
          lists.jeRemoveDicButton};
}

void workPicker(const ListEdit& edit, PickerOutlets& picker, Program& program, Hand& hand) {
  hand.type(picker.filterField, edit.filter);
  if (edit.ticksAllShown) {
    hand.press(picker.selectShownButton);
  } else {
    for (const int row : edit.rows) hand.tick(picker.techDicTable, row, true);
  }
  hand.press(edit.cancels ? picker.cancelButton : picker.okButton);
  if (program.windows().modalWindow() != nullptr) hand.press(picker.cancelButton);  // too many were ticked
}

std::string differenceIn(const PlainLists& lists, int direction, const Half& half) {
  const Words& names = lists.list(lists.style(), direction);
  const std::vector<int>& selected = lists.selected(direction);
  const int count = static_cast<int>(names.size()), row = selected.empty() ? -1 : selected.back();
  if (half.table.numberOfRows() != count) return "rows of " + half.table.name();
  for (int i = 0; i < count; ++i) {
    const std::string& name = names[static_cast<std::size_t>(i)];
    if (half.table.cell("name", i).text != name.substr(0, name.rfind('.'))) return "a row of " + half.table.name();
  }
  if (half.table.selectedRows() != selected) return "selection of " + half.table.name();
  if (half.load.isEnabled() != (count < PlainLists::longest)) return half.load.name();
  if (half.raise.isEnabled() != (row > 0)) return half.raise.name();
  if (half.lower.isEnabled() != (row >= 0 && row != count - 1)) return half.lower.name();
  if (half.remove.isEnabled() != (row >= 0)) return half.remove.name();
  return {};
}

}  // namespace

void makeEdit(const ListEdit& edit, const PlainLists& before, Program& program, Hand& hand, MemoryWindows& windows) {
  Interface& interface = program.interface();
  const Half half = halfOf(interface.lists, before.direction());
  switch (edit.kind) {
    case ListEdit::Kind::select: return hand.select(half.table, edit.rows);
    case ListEdit::Kind::raise: return hand.press(half.raise);
    case ListEdit::Kind::lower: return hand.press(half.lower);
    case ListEdit::Kind::remove: return hand.press(half.remove);
    case ListEdit::Kind::drag: return hand.drag(half.table, edit.rows, half.table, edit.place, DropOperation::above);
    case ListEdit::Kind::chooseStyle: return hand.choose(interface.style.stylePopup, edit.place);
    case ListEdit::Kind::chooseDirection: return hand.selectPage(interface.lists.directionTab, edit.place);
    case ListEdit::Kind::load:
      windows.step = [&] {
        workPicker(edit, interface.picker, program, hand);
        return true;
      };
      hand.press(half.load);
      windows.step = nullptr;
  }
}

std::string differenceInProgram(const PlainLists& lists, Program& program) {
  for (const int direction : {0, 1}) {
    const std::string difference = differenceIn(lists, direction, halfOf(program.interface().lists, direction));
    if (!difference.empty()) return difference;
  }
  Dictionary root;
  Array records;
  for (int style = 0; style < SoakRoot::styles; ++style) {
    records.emplace_back(program.rooms().store.getStyleAtIndex(style).value_or(Dictionary()));
  }
  root.set("Style", records);
  const std::string difference = differenceInStyles(lists, root);
  return difference.empty() ? "" : "the store: " + difference;
}

}  // namespace tarvo::test
