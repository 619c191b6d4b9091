// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_naming.h"

#include <optional>
#include <utility>

#include "platform/text/text_rules.h"
#include "style/pane_alerts.h"
#include "style/process_flags.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {

namespace {

std::string nameOf(const Dictionary& record) {
  const std::string* name = record.string(keyNameName);
  return name != nullptr ? *name : std::string();
}

}  // namespace

StyleNaming::StyleNaming(const Collaborators& with, std::string styleNamePublic)
    : with_(with), styleNamePublic_(std::move(styleNamePublic)) {}

void StyleNaming::updateStyleNameButton() {
  with_.outlets.StyleNameEditButton.setEnabled(with_.stylePopup.indexOfSelectedItem() != 0);
}

void StyleNaming::editStyleName() {
  with_.windows.covers().whenFree(with_.myWindow, [this] { openSheet(); });
}

void StyleNaming::openSheet() {
  const std::optional<Dictionary> record = with_.store.getStyleAtIndex(with_.stylePopup.indexOfSelectedItem());
  if (!record) return with_.alerts.tell("NoStyleToRename");
  with_.outlets.styleNameField.setStringValue(nameOf(*record));
  const bool isUp =
      with_.windows.beginSheet(with_.outlets.styleNameWindow, with_.myWindow, [this](int) { sheetDidEnd(); });
  if (isUp) with_.flags.gMenuControllFlag = true;
}

void StyleNaming::snOKButtonAction() {
  const int index = with_.stylePopup.indexOfSelectedItem();
  std::optional<Dictionary> record = with_.store.getStyleAtIndex(index);
  if (index == 0 || !record) return with_.windows.endSheet(with_.outlets.styleNameWindow, 0);
  if (!checkStyleNameEnough()) return with_.alerts.beepAndAlert("NoStyleNameHeader", "NoStyleNameMessage");
  const std::string name = with_.outlets.styleNameField.stringValue();
  if (!checkStyleName(with_.store.getAllStyle(), index, name)) {
    return with_.alerts.beepAndAlert("CantStyleNameNomalHeader", "CantStyleNameNomalMessage");
  }
  record->set(keyNameName, name);
  with_.store.setStyle(index, std::move(*record));
  with_.stylePopup.setItemTitle(index, name);
  with_.windows.endSheet(with_.outlets.styleNameWindow, 1);
}

void StyleNaming::snCancelButtonAction() { with_.windows.endSheet(with_.outlets.styleNameWindow, 0); }

bool StyleNaming::checkStyleNameEnough() {
  TextField& field = with_.outlets.styleNameField;
  field.setStringValue(trimmed(field.stringValue()));
  return !field.stringValue().empty();
}

bool StyleNaming::checkStyleName(const Array* styles, int nonTargetIndex, const std::string& newName) const {
  if (equalIgnoringCase(newName, styleNamePublic_)) return false;
  if (styles == nullptr) return true;
  for (std::size_t i = 0; i < styles->size(); ++i) {
    const Dictionary* record = (*styles)[i].dictionary();
    if (std::cmp_equal(i, nonTargetIndex)) continue;
    if (equalIgnoringCase(newName, record != nullptr ? nameOf(*record) : std::string())) return false;
  }
  return true;
}

void StyleNaming::sheetDidEnd() { with_.flags.gMenuControllFlag = false; }

}  // namespace tarvo
