// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/style_file_opening.h"

#include <utility>

#include "app/app_controller.h"
#include "app/interface.h"
#include "app/t_manager_controller.h"
#include "install/connection_check.h"
#include "platform/controls/windows.h"
#include "platform/services/panels.h"
#include "platform/services/texts.h"
#include "platform/text/text_rules.h"

namespace tarvo {

void StyleFileOpening::openStyleFile(const DiskPath& path) {
  if (with_.windows.covers().isAnythingUp()) {
    if (with_.connection.isAsking()) kept_ = path;
    return with_.panels.beep();
  }
  if (with_.interface.manager.myTabView.selectedPage() != tagOf(Pane::style)) with_.manager.changeToolbar();
  const std::optional<Dictionary> record = with_.styles.readForImport(path);
  if (record && mayReplace(path)) with_.styles.installStyle(*record, path);
}

std::optional<DiskPath> StyleFileOpening::takeKept() { return std::exchange(kept_, std::nullopt); }

bool StyleFileOpening::mayReplace(const DiskPath& path) {
  const PopUpButton& stylePopup = with_.interface.style.stylePopup;
  if (stylePopup.indexOfSelectedItem() < 0) return true;  // nothing to replace: the import tells so
  const int button = with_.panels.runAlertPanel(
      {.title = filledIn(with_.texts.localized("OpenImportHeader"), stylePopup.titleOfSelectedItem()),
       .message = filledIn(with_.texts.localized("OpenImportMessage"), path.name()),
       .buttons = {with_.texts.localized("OpenImport.Cancel"), with_.texts.localized("OpenImport.Replace")},
       .cancelButton = 0});
  return button == 1;
}

}  // namespace tarvo
