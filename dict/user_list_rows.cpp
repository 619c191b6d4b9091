// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/user_list_rows.h"

#include <utility>

#include "dict/unread_folders.h"
#include "dict/user_lists.h"

namespace tarvo {

UserListRows::UserListRows(UserListOutlets& outlets, const UserLists& lists, DictController::Services services,
                           UnreadFolders& unread)
    : shown_{&outlets.ejUDTableView, &outlets.ejUTMATableView, &outlets.jeUDTableView, &outlets.jeUTMATableView},
      lists_{&lists.ejUDController, &lists.ejUTMAController, &lists.jeUDController, &lists.jeUTMAController},
      services_(services),
      unread_(unread) {}

int UserListRows::numberOfRowsInTableView(TableView& table) {
  const std::size_t pair = pairOf(table);
  if (&table == shown_[pair]) {
    // A model of its own, so that looking does not touch what the lists have loaded.
    DictController folder(services_);
    const DiskPath& path = lists_[pair]->dicFolderPath();
    if (!path.empty()) folder.initializeDictController(lists_[pair]->kind(), path, lists_[pair]->direction());
    unread_.scanned(folder, table);
    rows_[pair] = folder.getAllDictionary();
  } else {
    shown_[pair]->reloadData();
  }
  return static_cast<int>(rows_[pair].size());
}

CellValue UserListRows::objectValueForTableColumn(TableView& table, std::string_view, int row) {
  const Names& rows = rows_[pairOf(table)];
  if (!std::in_range<std::size_t>(row) || static_cast<std::size_t>(row) >= rows.size()) return {};
  return {.text = rows[static_cast<std::size_t>(row)], .image = "", .checked = std::nullopt};
}

std::size_t UserListRows::pairOf(const TableView& table) {
  return static_cast<std::size_t>(table.tag() - firstTag) % pairs;
}

}  // namespace tarvo
