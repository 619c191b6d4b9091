// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_loading.h"

#include <string>

#include "dict/dictionary_list_editing.h"
#include "dict/new_dictionary_request.h"
#include "dict/running_application_guard.h"
#include "dict/tech_dic_controller.h"
#include "platform/services/texts.h"
#include "style/pane_alerts.h"

namespace tarvo {
namespace {

constexpr DictionaryKind technical = DictionaryKind::technical;  // of every list that the picker serves

// Takes the names without a file out; answers the last of them.
std::optional<std::string> removeMissing(Names& names, DictController& controller) {
  std::optional<std::string> missing;
  std::erase_if(names, [&](const std::string& name) {
    if (controller.isExitsDic(name)) return false;
    missing = name;
    return true;
  });
  return missing;
}

}  // namespace

DictionaryLoading::DictionaryLoading(DictionaryListEditing& lists, TechDicController& picker,
                                     NewDictionaryRequest& request, PaneAlerts& alerts, RunningApplicationGuard& guard,
                                     const Texts& texts)
    : lists_(lists), picker_(picker), request_(request), alerts_(alerts), guard_(guard), texts_(texts) {}

void DictionaryLoading::loadTD(int senderTag) {
  request_.direction = directionForTag(senderTag);
  DictController& controller = lists_.getActiveDictController(request_.direction);
  lists_.rescan(request_.direction);
  picker_.setPlaceholder(lists_.getActiveTableView(request_.direction).placeholder());
  setNonSelectionDic(request_.direction);
  picker_.setRoom(TDMax - static_cast<int>(controller.selectedDictionary().value_or(Names{}).size()));
  if (request_.direction == Direction::englishToJapanese) {
    picker_.openEJList();
  } else {
    picker_.openJEList();
  }
}

void DictionaryLoading::dicWindowOK() {
  const Direction direction = request_.direction;
  DictController& controller = lists_.getActiveDictController(direction);
  Names names = picker_.getCheckedArray(technical);
  if (names.empty()) {
    picker_.OKButtonAction();
    return;
  }
  if (lists_.isRefused(lists_.mayEdit(direction))) return;  // which of them are gone is not known
  if (const std::optional<std::string> missing = removeMissing(names, controller)) {
    alerts_.beepAndAlertWithText(texts_.localized("notExistsFileAlertHeader"),
                                 texts_.localized("notExistsFileAlertContents") + "\n" + "\n" + *missing);
  }
  if (controller.checkMaxOver(names)) return alerts_.openMaxOverAlert(technical);
  if (lists_.isRefused(lists_.edits().add(lists_.placeOf(direction), controller, names))) return;
  lists_.getActiveTableView(direction).reloadData();
  lists_.updateButton(direction);
  if (!names.empty()) guard_.alertStartedApplication(2);
  picker_.OKButtonAction();
}

void DictionaryLoading::dicWindowOK2() {
  const Direction direction = request_.direction;
  DictController& controller = lists_.getActiveDictController(direction);
  const Names names = picker_.getCheckedArray(technical);
  if (lists_.isRefused(lists_.mayEdit(direction))) return;
  if (controller.checkMaxOver(names)) return alerts_.openMaxOverAlert(technical);
  picker_.OKButtonAction();
  if (lists_.isRefused(lists_.edits().add(lists_.placeOf(direction), controller, names))) return;
  lists_.getActiveTableView(direction).reloadData();
  lists_.updateButton(direction);
}

void DictionaryLoading::dicWindowCancel() { picker_.CancelButtonAction(); }

void DictionaryLoading::setSelectedDic(Direction direction) {
  lists_.getActiveDictController(direction).updateDictionary(picker_.getCheckedArray(technical));
}

void DictionaryLoading::setNonSelectionDic(Direction direction) {
  picker_.setNotSelectedArray(lists_.getActiveDictController(direction).notSelectedDictionary(), technical);
}

}  // namespace tarvo
