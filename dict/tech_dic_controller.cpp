// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/tech_dic_controller.h"

#include <algorithm>
#include <utility>

#include "dict/dictionary_folders.h"
#include "dict/display_names.h"
#include "dict/running_application_guard.h"
#include "platform/services/notification_center.h"
#include "platform/services/notification_names.h"
#include "platform/services/opener.h"
#include "platform/services/texts.h"
#include "platform/text/text_rules.h"
#include "style/pane_alerts.h"

namespace tarvo {
namespace {

bool isRow(int row, std::size_t count) {
  return std::in_range<std::size_t>(row) && static_cast<std::size_t>(row) < count;
}

}  // namespace

TechDicController::TechDicController(const Collaborators& with, DictionaryNameChecks::Services services)
    : with_(with),
      texts_(services.texts),
      paths_(services.paths),
      sheet_({with.outlets.newDicWindow, with.outlets.newDicNameField, with.outlets.newDicTitleField,
              with.outlets.newDicFolderNameField, with.outlets.newDicFolderTitleField},
             request_, {.forbidden = {".", ":", "/"}, .tellsOverlongNamesOfOddKinds = false}, services, with.windows) {}

void TechDicController::open(Direction direction) {
  PickerOutlets& outlets = with_.outlets;
  const bool isEJ = direction == Direction::englishToJapanese;
  outlets.filterField.setStringValue("");
  outlets.myWindow.setTitle(texts_.localized(isEJ ? "EJ-TDEdit" : "JE-TDEdit"));
  outlets.TDTitleField.setStringValue(texts_.localized(isEJ ? "EJName" : "JEName"));
  outlets.techDicTable.scrollRowToVisible(0);
  request_.direction = direction;
  with_.windows.runModalForWindow(outlets.myWindow);
  with_.windows.orderOut(outlets.myWindow);
}

void TechDicController::close() {
  with_.windows.orderOut(with_.outlets.myWindow);
  with_.windows.stopModal();
}

TechDicController::Entries& TechDicController::entries(DictionaryKind kind) {
  if (kind == DictionaryKind::technical) return techDicArray_;
  return kind == DictionaryKind::user ? UserDicArray_ : UserTMAArray_;
}

TableView& TechDicController::table(DictionaryKind kind) {
  if (kind == DictionaryKind::technical) return with_.outlets.techDicTable;
  return kind == DictionaryKind::user ? with_.outlets.UserDicTable : with_.outlets.UserTMATable;
}

Names TechDicController::getCheckedArray(DictionaryKind kind) {
  Names names;
  for (const Entry& entry : entries(kind)) {
    if (entry.check) names.push_back(entry.name);
  }
  return names;
}

void TechDicController::setNotSelectedArray(const std::optional<Names>& names, DictionaryKind kind) {
  const bool isTechnical = kind == DictionaryKind::technical;
  if (names) {
    Entries& list = entries(kind);
    list.clear();
    list.reserve(names->size());
    for (const std::string& name : *names) {
      list.push_back({name, false, isTechnical ? caseFolded(pickerDisplayName(name, texts_)) : ""});
    }
  }
  table(kind).reloadData();
  if (!isTechnical) return;
  filterDidChange();
  showRoom();
}

void TechDicController::filterDidChange() {
  const std::string word = caseFolded(with_.outlets.filterField.stringValue());
  if (word.empty()) {
    with_.outlets.techDicTable.setRowFilter({});
    return;
  }
  shown_.resize(techDicArray_.size());
  for (std::size_t row = 0; row < shown_.size(); ++row) {
    shown_[row] = techDicArray_[row].folded.find(word) != std::string::npos;
  }
  with_.outlets.techDicTable.setRowFilter(
      [this](int row) { return isRow(row, shown_.size()) && shown_[static_cast<std::size_t>(row)]; });
}

void TechDicController::selectShown() {
  for (std::size_t row = 0; row < techDicArray_.size(); ++row) {
    if (with_.outlets.techDicTable.isRowShown(static_cast<int>(row))) techDicArray_[row].check = true;
  }
  with_.outlets.techDicTable.reloadData();
  showRoom();
}

void TechDicController::selectNone() {
  for (Entry& entry : techDicArray_) entry.check = false;
  with_.outlets.techDicTable.reloadData();
  showRoom();
}

void TechDicController::setRoom(int room) {
  room_ = room;
  showRoom();
}

void TechDicController::showRoom() {
  const auto isTicked = [](const Entry& entry) { return entry.check; };
  const auto ticked = std::count_if(techDicArray_.begin(), techDicArray_.end(), isTicked);
  const int left = room_ - static_cast<int>(ticked);
  with_.outlets.roomText.setStringValue(left >= 0 ? texts_.localized("PickerRoom") + std::to_string(left)
                                                  : texts_.localized("PickerRoomOver") + std::to_string(-left));
}

void TechDicController::OpenFolder(int senderTag) {
  const std::optional<DictionaryKind> kind = dictionaryKindForNumber(senderTag);
  if (!kind) return;
  const DiskPath folder = dictionaryFolder(paths_, *kind, request_.direction);
  if (!folder.empty()) return with_.opener.openFile(folder);
  with_.opener.cannot({"", Attempt::open, Reason::noPath});
}

int TechDicController::numberOfRowsInTableView(TableView& table) {
  return table.tag() == 0 ? static_cast<int>(techDicArray_.size()) : -1;
}

CellValue TechDicController::objectValueForTableColumn(TableView& table, std::string_view column, int row) {
  const std::optional<DictionaryKind> kind = dictionaryKindForNumber(table.tag());
  CellValue value;
  if (!kind || !isRow(row, entries(*kind).size())) return value;
  const Entry& entry = entries(*kind)[static_cast<std::size_t>(row)];
  if (column == picker_columns::check) value.checked = entry.check;
  if (column == picker_columns::name) value.text = pickerDisplayName(entry.name, texts_);
  return value;
}

void TechDicController::setObjectValue(TableView& table, bool value, std::string_view column, int row) {
  if (table.tag() != 0 || column != picker_columns::check || !isRow(row, techDicArray_.size())) return;
  techDicArray_[static_cast<std::size_t>(row)].check = value;
  table.reloadData();
  showRoom();
}

void TechDicController::newUD(int senderTag) {
  with_.windows.covers().whenFree(with_.outlets.myWindow, [this, senderTag] { openSheet(senderTag); });
}

void TechDicController::openSheet(int senderTag) {
  request_.kind = dictionaryKindForNumber(senderTag - 1);
  sheet_.begin(request_.kind == DictionaryKind::user ? "NewUDText" : "NewTMAText", with_.outlets.myWindow,
               [this](int returnCode) {
                 if (returnCode == 1) with_.notifications.post(newDicNotification, request_.fDictName);
               });
}

void TechDicController::setCreatedDictionary(const std::string& name, DictionaryKind kind) {
  if (kind == DictionaryKind::technical) return;
  Entries& list = entries(kind);
  const auto found =
      std::find_if(list.begin(), list.end(), [&](const Entry& entry) { return equalIgnoringCase(entry.name, name); });
  if (found != list.end()) {
    *found = {name, true};
  } else {
    list.push_back({name, true});
  }
  std::stable_sort(list.begin(), list.end(), [](const Entry& a, const Entry& b) { return a.name < b.name; });
  table(kind).reloadData();
  if (kind == DictionaryKind::user && isStartedApplication(RunningApplicationGuard::userDictionaryTool)) {
    with_.alerts.beepAndAlert("isLaunchingUDAlertHeader", "isLaunchingUDAlertContents");
  }
}

bool TechDicController::isStartedApplication(int tool) { return with_.guard.isStartedApplication(tool); }

}  // namespace tarvo
