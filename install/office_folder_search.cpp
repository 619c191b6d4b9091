// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/office_folder_search.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "install/addin_lists.h"
#include "install/mail_script_installer.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/common_module.h"
#include "platform/services/file_service.h"
#include "platform/services/locations.h"
#include "platform/services/plist_file.h"
#include "platform/services/script_runner.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

using namespace addin_keys;

constexpr int office2011 = 14;  // the version by which its applications call themselves

// Nobody knows what could not be read. What a file holds that was read is an answer.
bool isUnread(const Result<Dictionary>& information) {
  return !information && !isAbsence(information.error()) && information.error().cause.category() != reasonCategory();
}

bool isOfficeCreator(const std::string& creator) { return creator == "MSWD" || creator == "XCEL" || creator == "PPT3"; }

}  // namespace

Result<OfficeFolderSearch::Found> OfficeFolderSearch::searchFolder(const DiskPath& folder) {
  Found found;
  const std::size_t offices = lists_.fOfficeAddinArray().size(), mails = lists_.fMailAddinArray().size();
  const Result<std::vector<std::string>> names = services_.files.list(folder);
  if (!names) return names.error();
  for (const std::string& name : *names) {
    const DiskPath path = folder / name;
    const Result<Dictionary> information = readDictionary(services_.files, path / "Contents/Info.plist");
    if (isUnread(information)) found.unread.push_back(information.error());
    if (!information || addinText(*information, "CFBundlePackageType") != "APPL") continue;
    const auto& allShipped = lists_.fDefaultOfficeSetArray();
    if (!allShipped || !canBeStored(path)) continue;
    const int version = getApplicationVer(path);
    const std::string signature = addinText(*information, "CFBundleSignature");
    if (version == 0 && (isOfficeCreator(signature) || signature == outlookCreator))
      found.unread.push_back({path.text(), Attempt::look, Reason::damaged});
    for (const AddinLists::SharedEntry& shipped : *allShipped) {
      getAddOfficeDictionary(*shipped, version, path, signature, folder);
    }
  }
  for (const auto& [rows, known] :
       {std::pair(&lists_.fOfficeAddinArray(), offices), {&lists_.fMailAddinArray(), mails}}) {
    for (std::size_t row = known; row < rows->size(); ++row) found.added.push_back(addinText((*rows)[row], appName));
  }
  return found;
}

bool OfficeFolderSearch::canBeStored(const DiskPath& path) const {
  const std::string stored = services_.locations.inProduct(path).text();
  return canHoldText(stored) && storedPath(stored, services_.locations, services_.files) == path;
}

int OfficeFolderSearch::getApplicationVer(const DiskPath& path) {
  // Each line feed stands between two blanks, as the script service expects it.
  const std::string source = "tell application \"Finder\" \n set appInfo to info for file \"" +
                             services_.module.unixPathToClassic(services_.locations.inProduct(path)) +
                             "\" \n set appVer to short version of appInfo \n end tell";
  const std::optional<std::string> version = services_.scripts.runScript(source);
  return version ? leadingInteger(*version) : 0;
}

bool OfficeFolderSearch::getAddOfficeDictionary(const AddinEntry& shipped, int version, const DiskPath& path,
                                                const std::string& signature, const DiskPath& folder) {
  if (version != office2011 || addinText(shipped, appVersion) != "2011") return false;
  if (signature != addinText(shipped, appCreator)) return false;
  if (isOfficeCreator(signature)) return addOfficeRow(shipped, path, folder);
  return signature == outlookCreator && addMailRow(shipped, path);
}

bool OfficeFolderSearch::addOfficeRow(const AddinEntry& shipped, const DiskPath& path, const DiskPath& folder) {
  const std::vector<AddinEntry>& rows = lists_.fOfficeAddinArray();
  const std::string stored = services_.locations.inProduct(path).text();
  const auto isListed = [&stored](const AddinEntry& row) { return addinText(row, appPath) == stored; };
  if (std::any_of(rows.begin(), rows.end(), isListed)) return false;
  lists_.addOfficeRow(rowFor(shipped, path, folder));
  return true;
}

bool OfficeFolderSearch::addMailRow(const AddinEntry& shipped, const DiskPath& path) {
  if (!mailScripts_.isMailScriptFolder(shipped)) return true;
  if (!lists_.fMailAddinArray().empty() && addinText(shipped, appPath) == services_.locations.inProduct(path).text())
    return false;
  lists_.addMailRow(rowFor(shipped, path, services_.locations.home()));
  return true;
}

AddinEntry OfficeFolderSearch::rowFor(const AddinEntry& shipped, const DiskPath& path, const DiskPath& base) const {
  AddinEntry row = shipped;
  row.set(appPath, services_.locations.inProduct(path).text());
  row.set(installFolderPath, services_.locations.inProduct(base / addinText(shipped, installFolderName)).text());
  row.set(installStatus, lists_.getInstallStatus(row));
  return row;
}

}  // namespace tarvo
