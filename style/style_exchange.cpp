// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_exchange.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/services/locations.h"
#include "platform/services/panels.h"
#include "platform/services/texts.h"
#include "style/own_files.h"
#include "style/pane_alerts.h"
#include "style/style_check.h"
#include "style/style_edits.h"
#include "style/style_records.h"
#include "style/style_store.h"

namespace tarvo {

namespace {

constexpr const char* extension = "whstyle";

// Names of styles may hold what names of files may not.
std::string fileNameFor(std::string styleName) {
  std::replace(styleName.begin(), styleName.end(), '/', '_');
  return styleName.empty() ? "style" : styleName;
}

}  // namespace

std::optional<DiskPath> StyleExchange::chooseImportFile() {
  return with_.panels.runOpenPanel({.title = with_.texts.localized("Select Import Style File"), .types = {extension}});
}

std::optional<Dictionary> StyleExchange::readForImport(const DiskPath& path) {
  std::expected<Dictionary, StyleFault> record = readStyle(with_.files, path);
  if (record) return std::move(*record);
  tellThatNothingWasImported(path.text(), styleFaultParts(record.error(), with_.texts));
  return std::nullopt;
}

bool StyleExchange::install(Dictionary record, int index, const std::string& title) {
  if (!with_.store.getStyleAtIndex(index)) {
    tellThatNothingWasImported("", {});
    return false;
  }
  const Result<> done = replaceStyle(with_.store, index, std::move(record), title);
  if (!done) tellThatNothingWasImported(done.error().path, failureParts(done.error(), with_.texts));
  return done.has_value();
}

void StyleExchange::exportStyle() {
  with_.windows.covers().whenFree(with_.myWindow,
                                  [this] { askWhereToExport(with_.stylePopup.indexOfSelectedItem(), with_.myWindow); });
}

void StyleExchange::exportStyle2() {
  std::vector<PopUpButton::Item> items;
  if (const Array* styles = with_.store.getAllStyle()) {
    for (const PropertyList& style : *styles) {
      items.push_back({recordName(style), static_cast<int>(items.size())});
    }
  }
  with_.outlets.exportStylePopup.setItems(std::move(items));
  with_.windows.runModalForWindow(with_.outlets.exportWindow);
  with_.windows.orderOut(with_.outlets.exportWindow);
}

void StyleExchange::exportButtonAction() {
  with_.windows.covers().whenFree(with_.outlets.exportWindow, [this] {
    askWhereToExport(with_.outlets.exportStylePopup.indexOfSelectedItem(), with_.outlets.exportWindow);
  });
}

void StyleExchange::closeExportWindow() { with_.windows.stopModal(); }

void StyleExchange::askWhereToExport(int index, Window& host) {
  const std::optional<Dictionary> record = with_.store.getStyleAtIndex(index);
  if (!record) return tellThatNothingWasExported();
  with_.panels.beginSavePanel(host,
                              {.title = "",
                               .requiredType = extension,
                               .folder = with_.locations.home(),
                               .name = fileNameFor(styleName(*record))},
                              [this](int returnCode, const DiskPath& path) { didEndSaveSheet(returnCode, path); });
}

void StyleExchange::didEndSaveSheet(int returnCode, const DiskPath& path) {
  if (returnCode != 1) return;
  const int index = with_.stylePopup.indexOfSelectedItem();
  Result<> done = with_.ownFiles.checkOther(path);
  if (done) done = writeStyleFile(with_.store, index, with_.files, path);
  if (!done) tellThatNothingWasExported(done.error());
}

void StyleExchange::tellThatNothingWasImported(const std::string& path, const MessageParts& why) {
  const std::string details = path.empty() ? joined(why) : path + ": " + joined(why);
  if (!details.empty()) with_.panels.tell(details);
  with_.alerts.runAlertWithText(with_.texts.localized("ImportPlistErrorHeader"),
                                with_.texts.localized("ImportPlistErrorMessage"), details);
}

void StyleExchange::tellThatNothingWasExported(const std::optional<Failure>& why) {
  with_.alerts.runAlertWithText(with_.texts.localized("ExportPlistErrorHeader"),
                                with_.texts.localized("ExportPlistErrorMessage"),
                                why ? why->path + ": " + joined(failureParts(*why, with_.texts)) : std::string());
}

}  // namespace tarvo
