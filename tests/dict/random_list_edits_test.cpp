// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/dict/picker_world.h"

namespace tarvo::test {
namespace {

// A list and its selection as a translator thinks of them.
struct PlainList {
  Names names;
  int selected = -1;

  void move(int step) {
    const int to = selected + step;
    if (selected < 0 || to < 0 || to >= static_cast<int>(names.size())) return;
    std::iter_swap(names.begin() + selected, names.begin() + to);
    selected = to;
  }
  void remove() {
    if (selected < 0) return;
    names.erase(names.begin() + selected);
    if (selected >= static_cast<int>(names.size())) selected = -1;
  }
  void drag(int row, int place) {
    const std::string name = names[static_cast<std::size_t>(row)];
    names.erase(names.begin() + row);
    selected = place > row ? place - 1 : place;
    names.insert(names.begin() + selected, name);
  }
};

TEST(RandomListEdits, keepListTableAndFileAlike) {
  const Names all{"a.TRet", "b.TRet", "c.TRet", "d.TRet", "e.TRet", "f.TRet", "g.TRet", "h.TRet", "i.TRet"};
  PickerWorld world;
  world.openWithLists(all, {});
  TableView& table = world.outlets.ejTDTable;
  PlainList plain{all, -1};
  std::mt19937 random(20090131);
  const auto below = [&](std::size_t limit) { return static_cast<int>(random() % limit); };

  for (int edit = 0; edit < 800; ++edit) {
    switch (below(8)) {
      case 0:
      case 1:
        plain.selected = below(plain.names.size() + 1) - 1;
        table.selectRows({plain.selected});
        break;
      case 2:
      case 3:
        plain.move(-1);
        world.editing.raiseUpTD(0);
        break;
      case 4:
        plain.move(1);
        world.editing.raiseDownTD(0);
        break;
      case 5:
        if (plain.names.empty()) break;
        {
          const int row = below(plain.names.size()), place = below(plain.names.size() + 1);
          plain.drag(row, place);
          ASSERT_TRUE(table.userDrag({row}, table, place, DropOperation::above));
        }
        break;
      case 6:
        plain.remove();
        world.editing.removeTD(0);
        break;
      default: {  // adds a few through the picker, which refuses what would be too many
        const unsigned ticks = static_cast<unsigned>(random());
        world.host.whileModal = [&](Window&) {
          Names ticked;
          for (int row = 0; row < world.picker.techDicTable.numberOfRows(); ++row) {
            if ((ticks >> row & 1U) == 0) continue;
            world.tick({row});
            ticked.push_back(world.picker.techDicTable.cell("dicName", row).text);
          }
          const bool fits = static_cast<int>(plain.names.size() + ticked.size()) <= TDMax;
          world.loading.dicWindowOK();
          ASSERT_EQ(world.picker.myWindow.isShown(), !ticked.empty() && !fits) << edit;
          if (fits) plain.names.insert(plain.names.end(), ticked.begin(), ticked.end());
        };
        world.loading.loadTD(0);
      }
    }
    const int count = static_cast<int>(plain.names.size());
    ASSERT_EQ(loadedOf(world.editing.ejTDController), plain.names) << edit;
    ASSERT_EQ(table.numberOfRows(), count) << edit;
    ASSERT_EQ(table.selectedRow(), plain.selected) << edit;
    ASSERT_EQ(world.outlets.ejRaiseDicButton.isEnabled(), plain.selected > 0) << edit;
    ASSERT_EQ(world.outlets.ejDownDicButton.isEnabled(), plain.selected >= 0 && plain.selected < count - 1) << edit;
    ASSERT_EQ(world.outlets.ejLoadDicButton.isEnabled(), count < TDMax) << edit;
    ASSERT_EQ(world.listOnDisk(keyNameEJ), plain.names.empty() ? Array{"(absent)"} : arrayOf(plain.names)) << edit;
  }
}

}  // namespace
}  // namespace tarvo::test
