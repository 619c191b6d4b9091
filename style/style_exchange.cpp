// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_exchange.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"
#include "platform/services/locations.h"
#include "platform/services/panels.h"
#include "platform/services/plist_file.h"
#include "platform/services/texts.h"
#include "style/option_table.h"
#include "style/pane_alerts.h"
#include "style/style_file.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {

namespace {

constexpr const char* extension = "whstyle";

// What a style file has to hold. The other keys, lists of dictionaries among them, are taken as they are.
bool holds(const Dictionary& record, const IndexOption& option) {
  const Dictionary* half = record.dictionary(halfKey(option.direction));
  if (half == nullptr) return false;
  const PropertyList* value = half->find(option.key);
  if (value == nullptr) return option.mayBeAbsent;
  return value->hasIntegerValue() && value->integerValue() >= 0 && value->integerValue() < option.itemCount;
}

bool isStyle(const Dictionary& record) {
  const auto options = storedOptions();
  return std::all_of(options.begin(), options.end(),
                     [&record](const IndexOption& option) { return holds(record, option); });
}

std::string nameOf(const Dictionary* record) {
  const std::string* name = record != nullptr ? record->string(keyNameName) : nullptr;
  return name != nullptr ? *name : std::string();
}

// Names of styles may hold what names of files may not.
std::string fileNameFor(std::string styleName) {
  std::replace(styleName.begin(), styleName.end(), '/', '_');
  return styleName.empty() ? "style" : styleName;
}

}  // namespace

std::optional<std::string> StyleExchange::chooseImportFile() {
  const std::optional<std::string> path =
      with_.panels.runOpenPanel({.title = with_.texts.localized("Select Import Style File"), .types = {extension}});
  if (!path) return std::nullopt;
  return with_.locations.picked(*path);
}

bool StyleExchange::install(const std::string& path, int index, const std::string& title) {
  Result<Dictionary> record = readDictionary(with_.files, path);
  if (!record || !isStyle(*record) || !fitsStyleFile(*record) || !with_.store.getStyleAtIndex(index)) {
    with_.alerts.runAlertWithText(with_.texts.localized("ImportPlistErrorHeader"),
                                  with_.texts.localized("ImportPlistErrorMessage"));
    return false;
  }
  record->set(keyNameName, title);
  record->set(keyNameID, index);
  with_.store.setStyle(index, std::move(*record));
  return true;
}

void StyleExchange::exportStyle() {
  with_.windows.covers().whenFree(with_.myWindow,
                                  [this] { askWhereToExport(with_.stylePopup.indexOfSelectedItem(), with_.myWindow); });
}

void StyleExchange::exportStyle2() {
  std::vector<PopUpButton::Item> items;
  if (const Array* styles = with_.store.getAllStyle()) {
    for (const PropertyList& style : *styles) {
      items.push_back({nameOf(style.dictionary()), static_cast<int>(items.size())});
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
  with_.panels.beginSavePanel(
      host,
      {.title = "", .requiredType = extension, .folder = with_.locations.home(), .name = fileNameFor(nameOf(&*record))},
      [this](int returnCode, const std::string& path) { didEndSaveSheet(returnCode, path); });
}

void StyleExchange::didEndSaveSheet(int returnCode, const std::string& path) {
  if (returnCode != 1) return;
  const std::optional<Dictionary> record = with_.store.getStyleAtIndex(with_.stylePopup.indexOfSelectedItem());
  if (!record || !with_.files.write(with_.locations.picked(path), writePropertyList(*record))) {
    tellThatNothingWasExported();
  }
}

void StyleExchange::tellThatNothingWasExported() {
  with_.alerts.runAlertWithText(with_.texts.localized("ExportPlistErrorHeader"),
                                with_.texts.localized("ExportPlistErrorMessage"));
}

}  // namespace tarvo
