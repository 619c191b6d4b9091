// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/interface.h"
#include "app/rooms.h"
#include "platform/services/texts.h"

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
    half.list.setPages(pages(texts, {"TDTab", "UDTab", "UTMATab"}));
    row({.control = half.list, .tab = &half.edit});
    half.table.setColumns({{.identifier = dictionaryColumn, .icon = true}});
    half.table.setAllowsMultipleSelection(true);
    half.table.setDataSource(&rooms.dictionaryTable);
    half.table.setDelegate(&rooms.dictionaryTable);
    row({.control = half.table, .tag = direction, .tab = &half.list});
    const auto button = [&](Button& control, Control::Action action) {
      row({.control = control, .tag = direction, .tab = &half.list, .action = std::move(action)});
    };
    button(half.load, to(rooms.loading, &DictionaryLoading::loadTD));
    button(half.raise, to(rooms.lists, &DictionaryListEditing::raiseUpTD));
    button(half.down, to(rooms.lists, &DictionaryListEditing::raiseDownTD));
    button(half.remove, to(rooms.lists, &DictionaryListEditing::removeTD));
    ++direction;
  }
  tellChosenPages(rooms);
}

// A page of the user's own dictionaries shows what lies in the folder at the moment when it comes up.
void Interface::tellChosenPages(Rooms& rooms) {
  const auto tell = [&rooms](TabView& tab, std::initializer_list<TableView*> readAnew) {
    tab.didSelect = [&rooms, &tab, tables = std::vector(readAnew)](int page) {
      const auto index = static_cast<std::size_t>(page);
      rooms.lists.didSelectTabViewItem(tab.pages()[index].label);
      if (tables[index] != nullptr) tables[index]->reloadData();
    };
  };
  tell(lists.directionTab, {nullptr, nullptr});
  tell(lists.ejListTab, {nullptr, &userLists.ejUDTableView, &userLists.ejUTMATableView});
  tell(lists.jeListTab, {nullptr, &userLists.jeUDTableView, &userLists.jeUTMATableView});
}

void Interface::userListRows(Rooms& rooms) {
  struct Page {
    TabView& tab;
    int page;
    TableView &shown, &twin;
    Button &folder, &create;
    int newTag;
  };
  NewDictionaryOutlets& buttons = newDictionary;
  const Page userPages[] = {
      {lists.ejListTab, 1, userLists.ejUDTableView, userLists.ejUDTable, buttons.ejUDFolderButton,
       buttons.ejUDNewButton, 10},
      {lists.ejListTab, 2, userLists.ejUTMATableView, userLists.ejTMATable, buttons.ejTMAFolderButton,
       buttons.ejTMANewButton, 12},
      {lists.jeListTab, 1, userLists.jeUDTableView, userLists.jeUDTable, buttons.jeUDFolderButton,
       buttons.jeUDNewButton, 11},
      {lists.jeListTab, 2, userLists.jeUTMATableView, userLists.jeTMATable, buttons.jeTMAFolderButton,
       buttons.jeTMANewButton, 13},
  };
  int tag = UserListRows::firstTag;
  for (const Page& page : userPages) {
    for (TableView* table : {&page.shown, &page.twin}) {
      table->setColumns({{.identifier = dictionaryColumn}});
      table->setDataSource(&rooms.userListRows);
    }
    row({.control = page.shown, .tag = tag, .tab = &page.tab, .page = page.page});
    row({.control = page.twin, .tag = tag + UserListRows::pairs, .window = &manager.myWindow, .laidOut = false});
    const auto button = [&](Button& control, int sent, Control::Action action) {
      row({.control = control, .tag = sent, .tab = &page.tab, .page = page.page, .action = std::move(action)});
    };
    button(page.folder, page.page, to(rooms.picker, &TechDicController::OpenFolder));
    button(page.create, page.newTag, to(rooms.newDictionary, &NewDictionary::newUD));
    ++tag;
  }
}

}  // namespace tarvo
