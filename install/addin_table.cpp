// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_table.h"

#include <utility>

#include "install/addin_edits.h"
#include "install/addin_lists.h"
#include "install/addin_outlets.h"
#include "platform/services/failure_text.h"
#include "platform/services/panels.h"
#include "platform/services/texts.h"

namespace tarvo {

namespace {

using namespace addin_keys;

constexpr int officeTag = 0, mailTag = 1;

}  // namespace

AddinTable::AddinTable(Services services, AddinLists& lists, MacroInstaller& macros, MailScriptInstaller& mailScripts,
                       AddinOutlets& outlets, const TabView& panes)
    : services_(services),
      lists_(lists),
      macros_(macros),
      mailScripts_(mailScripts),
      outlets_(outlets),
      panes_(panes) {}

const AddinEntry* AddinTable::entryAt(int tag, int row) const {
  const std::vector<AddinEntry>* rows = lists_.rowsOf(tag);
  if (rows == nullptr || !std::in_range<std::size_t>(row) || static_cast<std::size_t>(row) >= rows->size()) {
    return nullptr;
  }
  return &(*rows)[static_cast<std::size_t>(row)];
}

int AddinTable::numberOfRowsInTableView(TableView& table) {
  const std::vector<AddinEntry>* rows = lists_.rowsOf(table.tag());
  return rows != nullptr ? static_cast<int>(rows->size()) : -1;
}

CellValue AddinTable::objectValueForTableColumn(TableView& table, std::string_view column, int row) {
  const AddinEntry* entry = entryAt(table.tag(), row);
  CellValue cell;
  if (entry == nullptr) return cell;
  if (column == addin_columns::check) cell.checked = isMarkedInstalled(*entry);
  if (column == addin_columns::name) cell.text = addinText(*entry, appName);
  if (column == addin_columns::version && table.tag() == officeTag) cell.text = addinText(*entry, appVersion);
  return cell;
}

void AddinTable::setObjectValue(TableView& table, bool value, std::string_view column, int row) {
  fIsInstalled = true;
  const int tag = table.tag();
  const AddinEntry* entry = entryAt(tag, row);
  if (entry == nullptr || column != addin_columns::check) return;
  const Result<> done = setInstalled(lists_, {tag, row}, value, macros_, mailScripts_);
  if (!done) services_.panels.beep();
  failures_.erase({tag, row});
  if (!done) failures_.emplace(std::pair(tag, row), done.error());
  const std::string key = std::string(tag == officeTag ? "Office" : "Mail") + (value ? "Install" : "UnInstall") +
                          (done ? "IsSuccessed" : "IsFailed");
  const std::string text = addinText(*entry, appName) + services_.texts.localized(key);
  table.reloadData();
  infoField(tag).setStringValue(text);
  showReason(tag, row);
}

void AddinTable::reloadTables() {
  outlets_.officeTableView.reloadData();
  outlets_.mailTableView.reloadData();
}

const Failure* AddinTable::failureOf(int tag, int row) const {
  const auto found = failures_.find({tag, row});
  return found != failures_.end() ? &found->second : nullptr;
}

void AddinTable::showReason(int tag, int row) {
  TextField& field = tag == officeTag ? outlets_.officeReasonField : outlets_.mailReasonField;
  const Failure* failure = failureOf(tag, row);
  field.setStringValue(failure != nullptr ? failureText(*failure, services_.texts) : "");
}

TextField& AddinTable::infoField(int tag) {
  return tag == officeTag ? outlets_.officeInfoField : outlets_.mailinfoField;
}

void AddinTable::selectionDidChange(TableView&) {
  if (std::exchange(fIsInstalled, false)) return;
  const int tag = panes_.selectedPage() - tagOf(Pane::office);  // the pages of the add-ins follow each other
  if (tag != officeTag && tag != mailTag) return;
  const TableView& table = tag == officeTag ? outlets_.officeTableView : outlets_.mailTableView;
  const AddinEntry* entry = entryAt(tag, table.selectedRow());
  if (entry == nullptr) return;
  showReason(tag, table.selectedRow());
  const bool installed = isMarkedInstalled(*entry);
  const std::string name = addinText(*entry, appName);
  if (tag == officeTag) {
    infoField(tag).setStringValue(addinText(*entry, appPath) + "\n\n" + name +
                                  services_.texts.localized(installed ? "OfficeisInstalled" : "OfficeisNotInstalled"));
  } else {
    infoField(tag).setStringValue(name +
                                  services_.texts.localized(installed ? "MailisInstalled" : "MailisNotInstalled"));
  }
}

}  // namespace tarvo
