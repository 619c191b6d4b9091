// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/mail_script_installer.h"

#include <optional>
#include <vector>

#include "install/directory_creation.h"
#include "platform/services/file_service.h"
#include "platform/services/system_version.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

// Below the home.
const char* folderForSystem(const FileService& files) {
  return systemVersion(files) < 104 ? "Library/Scripts/Mail Scripts" : "Library/Scripts/Applications/Mail";
}

}  // namespace

bool MailScriptInstaller::createMailScriptFolder() {
  return createDirectoryFromPath(files_, folderForSystem(files_), home_);
}

std::string MailScriptInstaller::mailScriptFolder() const { return joinPath(home_, folderForSystem(files_)); }

bool MailScriptInstaller::isMailScriptFolder(const AddinEntry& entry) const {
  return files_.exists(addinText(entry, addin_keys::installFolderPath));
}

bool MailScriptInstaller::installMailScript(const AddinEntry& entry) {
  const std::string name = addinItemName(entry);
  if (name.empty()) return false;
  const std::optional<std::string> source = addinSource(entry, bundle_);
  createDirectoryFromPath(files_, name, addinText(entry, addin_keys::installFolderPath));
  const std::string target = installedItemPath(entry);
  const auto names = source ? files_.list(*source) : std::nullopt;
  if (!names) return false;
  bool copied = false;
  for (const std::string& item : *names) {
    const std::string from = joinPath(*source, item);
    if (!files_.exists(from)) continue;
    copied = !files_.isLink(target) && files_.copy(from, joinPath(target, item));
    if (!copied) return false;
  }
  return copied;
}

bool MailScriptInstaller::unInstallMailScript(const AddinEntry& entry) {
  return unInstallScript(installedItemPath(entry));
}

bool MailScriptInstaller::unInstallScript(const std::string& folder) {
  const auto names = files_.list(folder);
  if (!names) return false;
  for (const std::string& item : *names) {
    const std::string path = joinPath(folder, item);
    if (files_.exists(path) && (files_.isLink(folder) || !files_.remove(path))) break;
  }
  return files_.removeEmptyFolder(folder);
}

}  // namespace tarvo
