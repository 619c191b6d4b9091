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
  return mailScriptFolders.at(systemVersion(files, locations) < 104 ? 0 : 1);
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
  const Result<std::vector<DiskPath>> scripts = source ? scriptsIn(*source) : source.error();
  const bool isNew = files_.ownKind(places.item) == FileService::Kind::absent;
  if (scripts && isNew) return files_.makeFolderOf(*scripts, places.item);
  const Result<> made = createDirectoryFromPath(files_, name, places.folder);
  Result<> added = scripts ? addScripts(*scripts, places.item) : scripts.error();
  return source && !added && !made ? made : added;  // without the folder no copy can be
}

Result<std::vector<DiskPath>> MailScriptInstaller::scriptsIn(const DiskPath& source) const {
  const Result<std::vector<std::string>> names = files_.list(source);
  if (!names) return names.error();
  std::vector<DiskPath> scripts;
  for (const std::string& name : *names) {
    if (!files_.isAbsent(source / name)) scripts.push_back(source / name);
  }
  if (scripts.empty()) return Failure{source.text(), Attempt::install, Reason::emptyResource};
  return scripts;
}

Result<> MailScriptInstaller::addScripts(const std::vector<DiskPath>& scripts, const DiskPath& folder) {
  for (const DiskPath& script : scripts) {
    if (Result<> own = checkNoLink(files_, folder, Attempt::install); !own) return own;
    if (Result<> copied = files_.copy(script, folder / script.name()); !copied) return copied;
  }
  return {};
}

Result<> MailScriptInstaller::unInstallMailScript(const AddinEntry& entry) {
  return unInstallScript(placesOf(entry, locations_, files_).item);
}

Result<> MailScriptInstaller::unInstallScript(const DiskPath& folder) {
  const Result<std::vector<std::string>> names = files_.list(folder);
  if (!names) return names.error();
  Result<> emptied = removeScripts(folder, *names);
  Result<> removed = files_.removeEmptyFolder(folder);
  if (removed) return files_.sync(folder.folder());
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
