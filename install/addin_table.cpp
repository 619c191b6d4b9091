// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_table.h"

#include <optional>
#include <utility>

#include "install/addin_edits.h"
#include "install/addin_outlets.h"
#include "platform/services/failure_text.h"
#include "platform/services/panels.h"
#include "platform/services/texts.h"

namespace tarvo {

using namespace addin_keys;

AddinTable::AddinTable(Services services, AddinLists& lists, MacroInstaller& macros, MailScriptInstaller& mailScripts,
                       AddinOutlets& outlets, const TabView& panes)
    : services_(services),
      lists_(lists),
      macros_(macros),
      mailScripts_(mailScripts),
      outlets_(outlets),
      panes_(panes) {}

const AddinEntry* AddinTable::entryAt(AddinPlace place) const {
  const std::vector<AddinEntry>& rows = lists_.rowsOf(place.kind);
  if (!std::in_range<std::size_t>(place.row) || static_cast<std::size_t>(place.row) >= rows.size()) return nullptr;
  return &rows[static_cast<std::size_t>(place.row)];
}

int AddinTable::numberOfRowsInTableView(TableView& table) {
  const std::optional<AddinKind> kind = addinKindForTag(table.tag());
  return kind ? static_cast<int>(lists_.rowsOf(*kind).size()) : -1;
}

CellValue AddinTable::objectValueForTableColumn(TableView& table, std::string_view column, int row) {
  const std::optional<AddinKind> kind = addinKindForTag(table.tag());
  const AddinEntry* entry = kind ? entryAt({*kind, row}) : nullptr;
  CellValue cell;
  if (entry == nullptr) return cell;
  if (column == addin_columns::check) cell.checked = isMarkedInstalled(*entry);
  if (column == addin_columns::name) cell.text = addinText(*entry, appName);
  if (column == addin_columns::version && kind == AddinKind::office) cell.text = addinText(*entry, appVersion);
  return cell;
}

void AddinTable::setObjectValue(TableView& table, bool value, std::string_view column, int row) {
  fIsInstalled = true;
  const std::optional<AddinKind> kind = addinKindForTag(table.tag());
  if (!kind || column != addin_columns::check) return;
  const AddinPlace place{*kind, row};
  const AddinEntry* entry = entryAt(place);
  if (entry == nullptr) return;
  const Result<> done = setInstalled(lists_, place, value, macros_, mailScripts_);
  if (!done) services_.panels.beep();
  failures_.erase(place);
  if (!done) failures_.emplace(place, done.error());
  const std::string key =
      std::string(rowOf(*kind).textsPrefix) + (value ? "Install" : "UnInstall") + (done ? "IsSuccessed" : "IsFailed");
  const std::string text = addinText(*entry, appName) + services_.texts.localized(key);
  table.reloadData();
  infoField(*kind).setStringValue(text);
  showReason(*kind, failureOf(place));
}

void AddinTable::reloadTables() {
  outlets_.officeTableView.reloadData();
  outlets_.mailTableView.reloadData();
}

const Failure* AddinTable::failureOf(AddinPlace place) const {
  const auto found = failures_.find(place);
  return found != failures_.end() ? &found->second : nullptr;
}

void AddinTable::showReason(AddinKind kind, const Failure* failure) {
  TextField& field = kind == AddinKind::office ? outlets_.officeReasonField : outlets_.mailReasonField;
  field.setStringValue(failure != nullptr ? failureText(*failure, services_.texts) : "");
}

TextField& AddinTable::infoField(AddinKind kind) {
  return kind == AddinKind::office ? outlets_.officeInfoField : outlets_.mailinfoField;
}

void AddinTable::selectionDidChange(TableView&) {
  if (std::exchange(fIsInstalled, false)) return;
  const std::optional<AddinKind> kind = addinKindForPage(panes_.selectedPage());
  if (!kind) return;
  const TableView& table = kind == AddinKind::office ? outlets_.officeTableView : outlets_.mailTableView;
  const AddinEntry* entry = entryAt({*kind, table.selectedRow()});
  if (entry == nullptr) return;
  const std::vector<Failure> faults = lists_.faultsOf(*entry);
  const Failure* failed = failureOf({*kind, table.selectedRow()});
  showReason(*kind, failed == nullptr && !faults.empty() ? &faults.front() : failed);
  const std::string where = kind == AddinKind::office ? addinText(*entry, appPath) + "\n\n" : "";
  const std::string key =
      std::string(rowOf(*kind).textsPrefix) + (isMarkedInstalled(*entry) ? "isInstalled" : "isNotInstalled");
  infoField(*kind).setStringValue(where + addinText(*entry, appName) + services_.texts.localized(key));
}

}  // namespace tarvo
