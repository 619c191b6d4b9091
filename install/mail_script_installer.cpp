// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/mail_script_installer.h"

#include <vector>

#include "install/directory_creation.h"
#include "platform/services/file_service.h"
#include "platform/services/locations.h"
#include "platform/services/system_version.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

// Below the home.
const char* folderForSystem(const FileService& files, const Locations& locations) {
  return systemVersion(files, locations) < 104 ? "Library/Scripts/Mail Scripts" : "Library/Scripts/Applications/Mail";
}

// What a link leads to is not the product's.
Result<> checkNoLink(const FileService& files, const DiskPath& path, Attempt attempt) {
  const Result<FileService::Kind> own = files.ownKind(path);
  if (!own) return own.error();
  if (*own == FileService::Kind::link) return Failure{path.text(), attempt, Reason::linkInTheWay};
  return {};
}

}  // namespace

Result<> MailScriptInstaller::createMailScriptFolder() {
  return createDirectoryFromPath(files_, folderForSystem(files_, locations_), locations_.home());
}

DiskPath MailScriptInstaller::mailScriptFolder() const {
  return locations_.inHome(folderForSystem(files_, locations_));
}

bool MailScriptInstaller::isMailScriptFolder(const AddinEntry& entry) const {
  return !files_.isAbsent(placesOf(entry, locations_, files_).folder);
}

Result<> MailScriptInstaller::installMailScript(const AddinEntry& entry) {
  const Result<DiskPath> source = addinSource(entry, bundle_);
  const AddinPlaces places = placesOf(entry, locations_, files_);
  const std::string name = addinItemName(entry);
  if (name.empty()) return source.error();
  const Result<> made = createDirectoryFromPath(files_, name, places.folder);
  if (!source) return source.error();
  Result<> copied = copyScripts(*source, places.item);
  return !copied && !made ? made : copied;  // without the folder no copy can be
}

Result<> MailScriptInstaller::copyScripts(const DiskPath& source, const DiskPath& target) {
  const Result<std::vector<std::string>> names = files_.list(source);
  if (!names) return names.error();
  Result<> copied = Failure{source.text(), Attempt::install, Reason::emptyResource};
  for (const std::string& item : *names) {
    const DiskPath from = source / item;
    if (files_.isAbsent(from)) continue;
    copied = checkNoLink(files_, target, Attempt::install);
    if (copied) copied = files_.copy(from, target / item);
    if (!copied) return copied;
  }
  return copied;
}

Result<> MailScriptInstaller::unInstallMailScript(const AddinEntry& entry) {
  return unInstallScript(placesOf(entry, locations_, files_).item);
}

Result<> MailScriptInstaller::unInstallScript(const DiskPath& folder) {
  const Result<std::vector<std::string>> names = files_.list(folder);
  if (!names) return names.error();
  Result<> emptied = removeScripts(folder, *names);
  Result<> removed = files_.removeEmptyFolder(folder);
  if (removed) return removed;
  if (!emptied) return emptied;  // what stayed is why the folder does
  const Result<> own = checkNoLink(files_, folder, Attempt::uninstall);
  return own ? removed : own;
}

Result<> MailScriptInstaller::removeScripts(const DiskPath& folder, const std::vector<std::string>& names) {
  Result<> emptied;
  for (const std::string& item : names) {
    const DiskPath path = folder / item;
    if (files_.isAbsent(path)) {  // listed, and leads nowhere
      if (emptied) emptied = Failure{path.text(), Attempt::uninstall, Reason::deadLink};
      continue;
    }
    if (Result<> own = checkNoLink(files_, folder, Attempt::uninstall); !own) return own;
    if (Result<> removed = files_.remove(path); !removed) return removed;
  }
  return emptied;
}

}  // namespace tarvo
