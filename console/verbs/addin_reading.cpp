// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/addin_reading.h"

#include <algorithm>

#include "app/product.h"
#include "app/program.h"
#include "platform/services/file_service.h"

namespace tarvo {

namespace {

// Whether a start would list this mail program: it makes Apple Mail's folder before it looks.
bool isListed(const AddinEntry& entry, const AddinPlaces& places, const FileService& files,
              const MailScriptInstaller& mailScripts) {
  if (files.isAbsent(places.application)) return false;
  return mailScripts.isMailScriptFolder(entry) || places.folder == mailScripts.mailScriptFolder();
}

// A remembered list leaves out what was not there at the end of an earlier run.
std::vector<AddinEntry> forgottenIn(const AddinLists& lists, const FileService& files) {
  std::vector<AddinEntry> forgotten;
  if (!lists.fDefaultOfficeSetArray()) return forgotten;
  for (const AddinLists::SharedEntry& shipped : *lists.fDefaultOfficeSetArray()) {
    const std::string path = addinText(*shipped, addin_keys::appPath);
    const bool isCandidate = std::any_of(
        lists.fOfficeArray().begin(), lists.fOfficeArray().end(),
        [&](const AddinLists::SharedEntry& candidate) { return addinText(*candidate, addin_keys::appPath) == path; });
    if (!isCandidate && files.isThere(lists.placesOf(*shipped).application)) forgotten.push_back(*shipped);
  }
  return forgotten;
}

}  // namespace

std::optional<AddinsRead> readAddins(Product& product) {
  FileService& files = product.files();
  AddinOutlets outlets;
  UserDefaults defaults(files, userDefaultsPath(product.locations()));
  const MailScriptInstaller mailScripts(files, product.bundle(), product.locations());
  AddinLists lists({files, product.bundle(), defaults, product.locations()}, mailScripts, outlets);
  if (!lists.searchOfficeApplication()) return std::nullopt;
  AddinsRead read{{}, forgottenIn(lists, files), lists.fOfficeAddinArray(), {}};
  for (const AddinLists::SharedEntry& candidate : lists.fOfficeArray()) {
    read.candidates.push_back(*candidate);
    if (!isMailAddin(*candidate) || !isListed(*candidate, lists.placesOf(*candidate), files, mailScripts)) continue;
    AddinEntry row = *candidate;
    row.set(addin_keys::installStatus, lists.getInstallStatus(row));
    read.mail.push_back(std::move(row));
  }
  return read;
}

}  // namespace tarvo
