// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "dict/dict_controller.h"
#include "platform/controls/table_view.h"

namespace tarvo {

class UnreadFolders;
class UserLists;

// Tables of the user's own dictionaries, tags 20 to 27: one shown table per direction and kind, and then, in the same
// order, their twins, which stand nowhere.
struct UserListOutlets : Outlets {
  TableView ejUDTableView{*this, "ejUDTableView"}, ejUTMATableView{*this, "ejUTMATableView"},
      jeUDTableView{*this, "jeUDTableView"}, jeUTMATableView{*this, "jeUTMATableView"};
  TableView ejUDTable{*this, "ejUDTable"}, ejTMATable{*this, "ejTMATable"}, jeUDTable{*this, "jeUDTable"},
      jeTMATable{*this, "jeTMATable"};
  UserListOutlets() : Outlets("style") {}
};

// Data source of those tables: the file names in the user's folders, read at each reload. A reload of either table of a
// pair reads the shown rows anew. A list that was never set up shows none.
class UserListRows : public TableDataSource {
 public:
  static constexpr int firstTag = 20, pairs = 4;
  UserListRows(UserListOutlets& outlets, const UserLists& lists, DictController::Services services,
               UnreadFolders& unread);
  int numberOfRowsInTableView(TableView& table) override;
  CellValue objectValueForTableColumn(TableView& table, std::string_view column, int row) override;

 private:
  static std::size_t pairOf(const TableView& table);
  std::array<TableView*, pairs> shown_;
  std::array<const DictController*, pairs> lists_;
  std::array<Names, pairs> rows_;
  DictController::Services services_;
  UnreadFolders& unread_;
};

}  // namespace tarvo
