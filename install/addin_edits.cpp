// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_edits.h"

#include "install/macro_installer.h"
#include "install/mail_script_installer.h"

namespace tarvo {

namespace {

Result<> perform(const AddinEntry& row, bool on, MacroInstaller& macros, MailScriptInstaller& mailScripts) {
  if (kindOf(row) == AddinKind::mail)
    return on ? mailScripts.installMailScript(row) : mailScripts.unInstallMailScript(row);
  return on ? macros.installOfficeMacro(row) : macros.unInstallOfficeMacro(row);
}

}  // namespace

Result<> setInstalled(AddinLists& lists, AddinPlace place, bool on, MacroInstaller& macros,
                      MailScriptInstaller& mailScripts) {
  Result<> done = perform(lists.rowsOf(place.kind).at(static_cast<std::size_t>(place.row)), on, macros, mailScripts);
  lists.setInstallStatus(place, on == done.has_value());
  return done;
}

}  // namespace tarvo
