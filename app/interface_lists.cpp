// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/interface.h"
#include "app/rooms.h"
#include "platform/texts.h"

// The dictionary pages of the style pane, one per direction.
namespace tarvo {

namespace {

std::vector<TabView::Page> pages(const Texts& texts, std::initializer_list<const char*> identifiers) {
  std::vector<TabView::Page> all;
  for (const char* identifier : identifiers) all.push_back({identifier, texts.localized(identifier)});
  return all;
}

}  // namespace

void Interface::listRows(Rooms& rooms, const Texts& texts) {
  lists.directionTab.setPages(pages(texts, {"EJTab", "JETab"}));
  row({.control = lists.directionTab, .tab = &manager.myTabView});
  struct Half {
    TabView &edit, &list;
    TableView& table;
    Button &load, &raise, &down, &remove;
  };
  int direction = 0;
  for (const Half& half : {Half{options.ejEditTab, lists.ejListTab, lists.ejTDTable, lists.ejLoadDicButton,
                                lists.ejRaiseDicButton, lists.ejDownDicButton, lists.ejRemoveDicButton},
                           Half{options.jeEditTab, lists.jeListTab, lists.jeTDTable, lists.jeLoadDicButton,
                                lists.jeRaiseDicButton, lists.jeDownDicButton, lists.jeRemoveDicButton}}) {
    half.list.setPages(pages(texts, {"TDTab"}));
    row({.control = half.list, .tab = &half.edit});
    half.table.setColumns({{.identifier = "name", .icon = true}});
    half.table.setAllowsMultipleSelection(true);
    half.table.setDataSource(&rooms.dictionaryTable);
    half.table.setDelegate(&rooms.dictionaryTable);
    row({.control = half.table, .tag = direction, .tab = &half.list});
    const auto button = [&](Button& control, Control::Action action) {
      row({.control = control, .tag = direction, .tab = &half.list, .action = std::move(action)});
    };
    button(half.load, {});
    button(half.raise, to(rooms.lists, &DictionaryListEditing::raiseUpTD));
    button(half.down, to(rooms.lists, &DictionaryListEditing::raiseDownTD));
    button(half.remove, to(rooms.lists, &DictionaryListEditing::removeTD));
    ++direction;
  }
  for (TabView* tab : {&lists.directionTab, &lists.ejListTab, &lists.jeListTab}) {
    tab->didSelect = [&rooms, tab](int page) {
      rooms.lists.didSelectTabViewItem(tab->pages()[static_cast<std::size_t>(page)].label);
    };
  }
}

}  // namespace tarvo
