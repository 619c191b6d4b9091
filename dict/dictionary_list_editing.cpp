// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_list_editing.h"

#include <utility>

#include "dict/running_application_guard.h"
#include "dict/unread_folders.h"
#include "platform/services/texts.h"

namespace tarvo {
namespace {

bool isRowOf(const std::optional<Names>& names, int row) {
  return names && std::in_range<std::size_t>(row) && static_cast<std::size_t>(row) < names->size();
}

}  // namespace

DictionaryListEditing::DictionaryListEditing(StyleStore& store, const PopUpButton& stylePopup, ListOutlets& outlets,
                                             const Texts& texts, DictController::Services services,
                                             RunningApplicationGuard& guard, UnreadFolders& unread)
    : ejTDController_(services),
      jeTDController_(services),
      edits_(store, texts),
      stylePopup_(stylePopup),
      outlets_(outlets),
      texts_(texts),
      guard_(guard),
      unread_(unread) {}

void DictionaryListEditing::setUp(Direction direction, DiskPath folder) {
  DictController& controller = getActiveDictController(direction);
  controller.initializeDictController(DictionaryKind::technical, std::move(folder), direction);
  unread_.scanned(controller, getActiveTableView(direction));
}

void DictionaryListEditing::rescan(Direction direction) {
  DictController& controller = getActiveDictController(direction);
  TableView& table = getActiveTableView(direction);
  const bool wasOutOfReach = controller.unread().has_value();
  controller.updateAllDictionary();
  unread_.scanned(controller, table);
  if (!wasOutOfReach) return;
  table.reloadData();
  updateButton(direction);
}

Result<> DictionaryListEditing::mayEdit(Direction direction) const {
  const DictController& list = direction == Direction::englishToJapanese ? ejTDController_ : jeTDController_;
  return list.couldRead();
}

bool DictionaryListEditing::isRefused(const Result<>& edit) const {
  if (edit) return false;
  unread_.refused(edit.error());
  return true;
}

void DictionaryListEditing::raiseUpTD(int senderTag) { move(directionForTag(senderTag), -1); }

void DictionaryListEditing::raiseDownTD(int senderTag) { move(directionForTag(senderTag), 1); }

void DictionaryListEditing::move(Direction direction, int step) {
  DictController& controller = getActiveDictController(direction);
  TableView& table = getActiveTableView(direction);
  const std::optional<Names> loaded = controller.selectedDictionary();
  const int row = table.selectedRow();
  // The buttons see to this in a window; a script may move without a selection, or at the ends.
  if (!isRowOf(loaded, row) || !isRowOf(loaded, row + step)) return;
  if (isRefused(edits_.exchange(placeOf(direction), controller, row, row + step))) return;
  table.reloadData();
  table.selectRows({row + step});
  updateButton(direction);
}

void DictionaryListEditing::removeTD(int senderTag) {
  const Direction direction = directionForTag(senderTag);
  DictController& controller = getActiveDictController(direction);
  TableView& table = getActiveTableView(direction);
  const std::optional<Names> loaded = controller.selectedDictionary();
  const int row = table.selectedRow();
  if (!loaded || !isRowOf(loaded, row)) return;
  const std::string& name = (*loaded)[static_cast<std::size_t>(row)];
  if (isRefused(edits_.remove(placeOf(direction), controller, {name}))) return;
  table.reloadData();
  updateButton(direction);
  guard_.alertStartedApplication(2);
}

void DictionaryListEditing::writeUpdateDicTarvoPlist(Direction direction) {
  isRefused(edits_.storeLoaded(placeOf(direction), getActiveDictController(direction)));
}

void DictionaryListEditing::updateButton(Direction buttons, Direction tableOf) {
  const TableView& table = getActiveTableView(tableOf);
  const bool isEJ = buttons == Direction::englishToJapanese;
  const int row = table.selectedRow();
  const bool isSelected = row >= 0;
  (isEJ ? outlets_.ejRaiseDicButton : outlets_.jeRaiseDicButton).setEnabled(row >= 1);
  (isEJ ? outlets_.ejDownDicButton : outlets_.jeDownDicButton)
      .setEnabled(isSelected && row != table.numberOfRows() - 1);
  (isEJ ? outlets_.ejRemoveDicButton : outlets_.jeRemoveDicButton).setEnabled(isSelected);
  (isEJ ? outlets_.ejLoadDicButton : outlets_.jeLoadDicButton).setEnabled(table.numberOfRows() < TDMax);
}

void DictionaryListEditing::didSelectTabViewItem(std::string_view label) {
  if (label == texts_.localized("EJTab")) {
    shownDirection_ = Direction::englishToJapanese;
  } else if (label == texts_.localized("JETab")) {
    shownDirection_ = Direction::japaneseToEnglish;
  }
  updateButton(shownDirection_);
}

}  // namespace tarvo
