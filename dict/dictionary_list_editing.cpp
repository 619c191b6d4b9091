// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_list_editing.h"

#include <utility>

#include "dict/running_application_guard.h"
#include "platform/services/texts.h"
#include "style/divider.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {
namespace {

bool isRowOf(const std::optional<Names>& names, int row) {
  return names && std::in_range<std::size_t>(row) && static_cast<std::size_t>(row) < names->size();
}

}  // namespace

DictionaryListEditing::DictionaryListEditing(StyleStore& store, const PopUpButton& stylePopup, ListOutlets& outlets,
                                             const Texts& texts, DictController::Services services,
                                             RunningApplicationGuard& guard)
    : ejTDController(services),
      jeTDController(services),
      store_(store),
      stylePopup_(stylePopup),
      outlets_(outlets),
      texts_(texts),
      guard_(guard) {}

void DictionaryListEditing::raiseUpTD(int senderTag) { move(senderTag, -1); }

void DictionaryListEditing::raiseDownTD(int senderTag) { move(senderTag, 1); }

void DictionaryListEditing::move(int senderTag, int step) {
  DictController& controller = getActiveDictController(senderTag);
  TableView& table = getActiveTableView(senderTag);
  const std::optional<Names> loaded = controller.selectedDictionary();
  const int row = table.selectedRow();
  // The buttons see to this in a window; a script may move without a selection, or at the ends.
  if (!isRowOf(loaded, row) || !isRowOf(loaded, row + step)) return;
  controller.exchangeDictionary(row, row + step);
  table.reloadData();
  table.selectRows({row + step});
  writeUpdateDicTarvoPlist(senderTag);
  updateButton(senderTag);
}

void DictionaryListEditing::removeTD(int senderTag) {
  DictController& controller = getActiveDictController(senderTag);
  TableView& table = getActiveTableView(senderTag);
  const std::optional<Names> loaded = controller.selectedDictionary();
  const int row = table.selectedRow();
  if (!isRowOf(loaded, row)) return;
  controller.unloadDictionary((*loaded)[static_cast<std::size_t>(row)]);
  table.reloadData();
  writeUpdateDicTarvoPlist(senderTag);
  updateButton(senderTag);
  guard_.alertStartedApplication(2);
}

void DictionaryListEditing::writeUpdateDicTarvoPlist(int direction) {
  const int index = stylePopup_.indexOfSelectedItem();
  std::optional<Dictionary> record = store_.getStyleAtIndex(index);
  if (!record) return;
  const std::optional<Names> loaded = getActiveDictController(direction).selectedDictionary();
  // The divider, and a record without the direction's dictionary, get none; they are written back as they are.
  Dictionary* half = record->dictionary(direction != 0 ? keyNameJE : keyNameEJ);
  if (half != nullptr && !isDivider(*record, texts_)) {
    if (loaded) {
      half->set(keyNameTD, Array(loaded->begin(), loaded->end()));
    } else {
      half->remove(keyNameTD);
    }
  }
  store_.setStyle(index, std::move(*record));
}

void DictionaryListEditing::updateButton(int code) {
  if (code < 0 || code > 5) return;
  const TableView& table = getActiveTableView(code);
  const bool isEJ = code % 2 == 0;
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
    baseTabKey_ = 0;
  } else if (label == texts_.localized("JETab")) {
    baseTabKey_ = 100;
  }
  constexpr std::string_view subTabKeys[] = {"TDTab", "UDTab", "UTMATab"};
  int subTab = 0;
  for (const std::string_view key : subTabKeys) {
    ++subTab;
    if (label == texts_.localized(key)) (baseTabKey_ == 0 ? currentEJKey_ : currentJEKey_) = subTab;
  }
  currentTabKey_ = baseTabKey_ == 0 ? currentEJKey_ : 100 + currentJEKey_;
  updateButton(baseTabKey_ == 0 ? 0 : 1);
}

}  // namespace tarvo
