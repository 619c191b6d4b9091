// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/menu_rules.h"

#include "app/panes.h"
#include "platform/services/texts.h"
#include "style/process_flags.h"

namespace tarvo {

bool stylePaneAllows(std::string_view title, std::string_view selectedPane, const Texts& texts) {
  const bool travels = title == texts.localized("StyleExportMenu") || title == texts.localized("StyleInportMenu");
  return !travels || selectedPane == rowOf(Pane::style).identifier;
}

bool mainWindowAllows(std::string_view title, const ProcessFlags& flags, const Texts& texts) {
  if (!flags.gMenuControllFlag) return true;
  return title == texts.localized("appHelp") || title == texts.localized("whHelp") ||
         title == texts.localized("supportHelp");
}

}  // namespace tarvo
