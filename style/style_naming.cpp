// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_naming.h"

#include <optional>
#include <utility>

#include "platform/text/text_rules.h"
#include "style/pane_alerts.h"
#include "style/process_flags.h"
#include "style/style_edits.h"
#include "style/style_records.h"
#include "style/style_store.h"

namespace tarvo {

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
  with_.outlets.styleNameField.setStringValue(styleName(*record));
  const bool isUp =
      with_.windows.beginSheet(with_.outlets.styleNameWindow, with_.myWindow, [this](int) { sheetDidEnd(); });
  if (isUp) with_.flags.gMenuControllFlag = true;
}

void StyleNaming::snOKButtonAction() {
  const int index = with_.stylePopup.indexOfSelectedItem();
  if (index == 0 || !with_.store.getStyleAtIndex(index)) {
    return with_.windows.endSheet(with_.outlets.styleNameWindow, 0);
  }
  checkStyleNameEnough();
  const std::string name = with_.outlets.styleNameField.stringValue();
  if (const auto renamed = renameStyle(with_.store, index, name, styleNamePublic_); !renamed) {
    return renamed.error() == NameProblem::empty
               ? with_.alerts.beepAndAlert("NoStyleNameHeader", "NoStyleNameMessage")
               : with_.alerts.beepAndAlert("CantStyleNameNomalHeader", "CantStyleNameNomalMessage");
  }
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
  return isNameFree(styles, nonTargetIndex, newName, styleNamePublic_);
}

void StyleNaming::sheetDidEnd() { with_.flags.gMenuControllFlag = false; }

}  // namespace tarvo
