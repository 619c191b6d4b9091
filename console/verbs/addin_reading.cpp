// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/addin_reading.h"

#include <algorithm>

#include "app/picked_applications.h"
#include "app/product.h"
#include "app/program.h"
#include "platform/services/file_service.h"

namespace tarvo {

namespace {

// Whether a start would list this mail program: it makes Apple Mail's folder before it looks.
bool isListed(const AddinEntry& entry, const FileService& files, const MailScriptInstaller& mailScripts) {
  if (files.isAbsent(addinText(entry, addin_keys::appPath))) return false;
  const std::string folder = addinText(entry, addin_keys::installFolderPath);
  return mailScripts.isMailScriptFolder(entry) || folder == mailScripts.mailScriptFolder();
}

// A remembered list leaves out what was not there at the end of an earlier run.
std::vector<AddinEntry> forgottenIn(const AddinLists& lists, const FileService& files) {
  std::vector<AddinEntry> forgotten;
  if (!lists.fDefaultOfficeSetArray) return forgotten;
  for (const AddinLists::SharedEntry& shipped : *lists.fDefaultOfficeSetArray) {
    const std::string path = addinText(*shipped, addin_keys::appPath);
    const bool isCandidate = std::any_of(
        lists.fOfficeArray.begin(), lists.fOfficeArray.end(),
        [&](const AddinLists::SharedEntry& candidate) { return addinText(*candidate, addin_keys::appPath) == path; });
    if (!isCandidate && files.isThere(path)) forgotten.push_back(*shipped);
  }
  return forgotten;
}

}  // namespace

std::optional<AddinsRead> readAddins(Product& product) {
  FileService& files = product.files();
  const std::string home = product.locations().home();
  AddinOutlets outlets;
  UserDefaults defaults(files, userDefaultsPath(product.locations()));
  leavePickedApplications(defaults, product.locations());
  const MailScriptInstaller mailScripts(files, product.bundle(), home);
  AddinLists lists({files, product.bundle(), defaults}, home, mailScripts, outlets);
  if (!lists.searchOfficeApplication()) return std::nullopt;
  AddinsRead read{{}, forgottenIn(lists, files), std::move(lists.fOfficeAddinArray), {}};
  for (const AddinLists::SharedEntry& candidate : lists.fOfficeArray) {
    read.candidates.push_back(*candidate);
    if (!isMailAddin(*candidate) || !isListed(*candidate, files, mailScripts)) continue;
    AddinEntry row = *candidate;
    row.set(addin_keys::installStatus, lists.getInstallStatus(row));
    read.mail.push_back(std::move(row));
  }
  return read;
}

}  // namespace tarvo
