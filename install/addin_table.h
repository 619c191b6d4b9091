// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "install/addin_lists.h"
#include "platform/controls/table_view.h"
#include "platform/services/result.h"

// Data source and delegate of the Office table and the mail table, which it tells apart by their tags.
// Duty: what a row shows; asking for the edit when its box is ticked; the text about the selected or the changed row.
// Not: installing and removing (addin_edits.h).
namespace tarvo {

class MacroInstaller;
class MailScriptInstaller;
class Panels;
class TabView;
class TextField;
class Texts;
struct AddinOutlets;

class AddinTable : public TableDataSource, public TableDelegate {
 public:
  struct Services {
    Panels& panels;
    const Texts& texts;
  };
  // panes: the tab view whose page decides which table a selection is told of.
  AddinTable(Services services, AddinLists& lists, MacroInstaller& macros, MailScriptInstaller& mailScripts,
             AddinOutlets& outlets, const TabView& panes);

  int numberOfRowsInTableView(TableView& table) override;
  CellValue objectValueForTableColumn(TableView& table, std::string_view column, int row) override;
  void setObjectValue(TableView& table, bool value, std::string_view column, int row) override;
  void selectionDidChange(TableView& table) override;
  // Shows the rows of both tables anew.
  void reloadTables();

  // Why the last tick of this row failed; null when it did not. Below the texts it is shown in words; of a selected row
  // whose last tick did not fail, in what its installed macro or scripts differ from the product's.
  const Failure* failureOf(AddinPlace place) const;

  // Set by every edit, taken back by the next selection, whose text it suppresses: the click that ticks a box also
  // selects its row, and the result must stay to be read.
  bool fIsInstalled = false;

 private:
  const AddinEntry* entryAt(AddinPlace place) const;
  TextField& infoField(AddinKind kind);
  void showReason(AddinKind kind, const Failure* failure);
  Services services_;
  AddinLists& lists_;
  MacroInstaller& macros_;
  MailScriptInstaller& mailScripts_;
  AddinOutlets& outlets_;
  const TabView& panes_;
  std::map<AddinPlace, Failure> failures_;  // rows never change places
};

}  // namespace tarvo
