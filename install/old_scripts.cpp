// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/old_scripts.h"

#include <array>
#include <utility>

#include "install/addin_lists.h"
#include "install/mail_script_installer.h"
#include "platform/services/file_service.h"
#include "platform/services/panels.h"
#include "platform/services/texts.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

using namespace addin_keys;

struct OldGeneration {
  const char* creator;
  const char* version;  // null: any
  const char* folderKey;
  const char* messageKey;
};
// In the order in which the removals are told.
constexpr std::array<OldGeneration, 3> generations{
    {{appleMailCreator, nullptr, "MailTarvoFolderName", "OldMailScriptIsDelete"},
     {outlookCreator, "2011", "Outlook2011TarvoFolderName", "OldOut2011ScriptIsDelete"},
     {outlookCreator, "2004", "Entourage2004TarvoFolderName", "OldEnt2004ScriptIsDelete"}}};

bool isOf(const OldGeneration& generation, const AddinEntry& entry) {
  return addinText(entry, appCreator) == generation.creator &&
         (generation.version == nullptr || addinText(entry, appVersion) == generation.version);
}

}  // namespace

OldScripts::OldScripts(Services services, AddinLists& lists, MailScriptInstaller& mailScripts, DiskPath home)
    : services_(services), lists_(lists), mailScripts_(mailScripts), home_(std::move(home)) {}

void OldScripts::OldscriptUninstall() {
  std::array<bool, generations.size()> removed{};
  if (const auto& allShipped = lists_.fDefaultOfficeSetArray()) {
    for (const AddinLists::SharedEntry& shipped : *allShipped) {
      for (std::size_t i = 0; i < generations.size(); ++i) {
        if (isOf(generations[i], *shipped) && removeFor(*shipped, generations[i].folderKey)) removed[i] = true;
      }
    }
  }
  std::string message;
  for (std::size_t i = 0; i < generations.size(); ++i) {
    if (removed[i]) message += services_.texts.localized(generations[i].messageKey);
  }
  if (!message.empty()) tell(message);
  lists_.lookAtMailRows();
}

bool OldScripts::removeFor(const AddinEntry& shipped, const char* oldFolderKey) {
  const DiskPath base = home_ / addinText(shipped, installFolderName);
  const std::string name = addinItemName(shipped);
  if (name.empty() || !services_.files.isThere(base / services_.texts.localized(oldFolderKey))) return false;
  const Result<> removed = mailScripts_.unInstallScript(base / name);
  if (!removed && !isAbsence(removed.error()) && didFail) didFail(removed.error());
  return removed.has_value();
}

void OldScripts::tell(const std::string& removed) {
  const Texts& texts = services_.texts;
  services_.panels.beep();
  services_.panels.runAlertPanel({.title = texts.localized("OldScriptIsDeleteHeader"),
                                  .message = removed + texts.localized("OldScriptIsDelete"),
                                  .buttons = {texts.localized("AlertClose")},
                                  .details = {}});
}

}  // namespace tarvo
