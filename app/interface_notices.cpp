// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/app_controller.h"
#include "app/interface.h"
#include "app/rooms.h"
#include "app/t_manager_controller.h"
#include "platform/services/texts.h"

// What takes edits back, the earlier styles, and the line at the foot of the main window.
namespace tarvo {

void Interface::editRows(const Actors& actors) {
  UndoCommands& undo = actors.rooms.undo;
  row({.control = style.undoMenu, .action = to(undo, &UndoCommands::undo)});
  style.undoMenu.validate = [&undo](const MenuItem&) { return undo.allows(UndoSteps::Way::undo); };
  row({.control = style.redoMenu, .action = to(undo, &UndoCommands::redo)});
  style.redoMenu.validate = [&undo](const MenuItem&) { return undo.allows(UndoSteps::Way::redo); };
  menuItem(actors, style.earlierStylesMenu, 0, "", [&rooms = actors.rooms](Control&) { rooms.earlierPanel.run(""); });
}

void Interface::earlierStylesRows(Rooms& rooms, const Texts& texts) {
  Window* window = &earlier.earlierStylesWindow;
  window->setTitle(texts.localized("Label.earlierStylesWindow"));
  window->close = [&rooms] { rooms.earlierPanel.close(); };
  row({.control = *window, .window = window});
  TableView& table = earlier.earlierStylesTable;
  table.setColumns({{history_columns::time}, {history_columns::kind}, {history_columns::changed}});
  table.setDataSource(&rooms.earlierPanel);
  table.setDelegate(&rooms.earlierPanel);
  row({.control = table, .window = window});
  row({.control = earlier.earlierStylesText, .window = window});
  row({.control = earlier.restoreAllButton,
       .window = window,
       .action = to(rooms.earlierPanel, &EarlierStylesPanel::restoreAll)});
  row({.control = earlier.restoreStyleButton,
       .window = window,
       .action = to(rooms.earlierPanel, &EarlierStylesPanel::restoreStyle)});
  row({.control = earlier.earlierStylesCloseButton,
       .window = window,
       .action = to(rooms.earlierPanel, &EarlierStylesPanel::close)});
}

void Interface::noticeRows(Rooms& rooms) {
  Window* window = &manager.myWindow;
  row({.control = notices.noticeText, .window = window});
  row({.control = notices.noticeButton, .window = window, .action = to(rooms.board, &NoticeBoard::press)});
  row({.control = notices.noticeListButton, .window = window, .action = to(rooms.board, &NoticeBoard::toggleList)});
  notices.noticeTable.setColumns({{notice_columns::text}});
  notices.noticeTable.setDataSource(&rooms.board);
  row({.control = notices.noticeTable, .window = window});
  notices.noticeTable.setHidden(true);
  rooms.board.show();
}

}  // namespace tarvo
