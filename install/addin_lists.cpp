// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_lists.h"

#include <algorithm>
#include <utility>

#include "install/addin_diagnosis.h"
#include "install/mail_script_installer.h"
#include "platform/services/bundle.h"
#include "platform/services/file_service.h"
#include "platform/services/locations.h"
#include "platform/services/plist_file.h"
#include "platform/services/user_defaults.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

using namespace addin_keys;

// Elements that are no records are left out.
std::vector<AddinLists::SharedEntry> entriesOf(const Array& values) {
  std::vector<AddinLists::SharedEntry> entries;
  for (const PropertyList& value : values) {
    if (value.dictionary() != nullptr) entries.push_back(std::make_shared<AddinEntry>(*value.dictionary()));
  }
  return entries;
}

}  // namespace

AddinLists::AddinLists(Services services, const MailScriptInstaller& mailScripts)
    : services_(services), mailScripts_(mailScripts) {}

AddinPlaces AddinLists::placesOf(const AddinEntry& entry) const {
  return tarvo::placesOf(entry, services_.locations, services_.files);
}

Result<> AddinLists::loadAddinPlist() {
  Result<std::vector<SharedEntry>> shipped = readShipped();
  fDefaultOfficeSetArray_ = shipped ? std::optional(*shipped) : std::nullopt;
  fOfficeArray_.clear();
  const PropertyList* remembered = services_.defaults.find(office);
  if (remembered != nullptr && remembered->array() != nullptr) {
    fOfficeArray_ = entriesOf(*remembered->array());
    joinOutlook();
    return {};
  }
  if (!shipped) return shipped.error();
  fOfficeArray_ = std::move(*shipped);
  for (const SharedEntry& entry : fOfficeArray_) {
    if (kindOf(*entry) == AddinKind::mail) prefixHome(*entry);
  }
  return {};
}

Result<std::vector<AddinLists::SharedEntry>> AddinLists::readShipped() const {
  const std::optional<DiskPath> path = services_.bundle.resource("DefaultAddin", "plist");
  if (!path) {
    return Failure{(services_.bundle.folder() / "DefaultAddin.plist").text(), Attempt::read, Reason::missingResource};
  }
  const Result<Dictionary> root = readDictionary(services_.files, *path);
  if (!root) return root.error();
  const Array* records = root->array(office);
  if (records == nullptr) return Failure{path->text(), Attempt::read, Reason::damaged};
  return entriesOf(*records);
}

void AddinLists::joinOutlook() {
  if (!fDefaultOfficeSetArray_) return;
  for (const SharedEntry& shipped : *fDefaultOfficeSetArray_) {
    if (addinText(*shipped, appCreator) != outlookCreator) continue;
    const std::string path = addinText(*shipped, appPath);
    const bool known = std::any_of(fOfficeArray_.begin(), fOfficeArray_.end(), [&path](const SharedEntry& entry) {
      return addinText(*entry, appCreator) == outlookCreator && addinText(*entry, appPath) == path;
    });
    if (known) continue;
    prefixHome(*shipped);
    fOfficeArray_.push_back(shipped);
  }
}

void AddinLists::prefixHome(AddinEntry& entry) const {
  const DiskPath folder = services_.locations.inHome(addinText(entry, installFolderPath));
  entry.set(installFolderPath, services_.locations.inProduct(folder).text());
}

bool AddinLists::hasScriptFolder(const AddinEntry& entry, MailFolder mailFolder) const {
  return mailScripts_.isMailScriptFolder(entry) ||
         (mailFolder == MailFolder::asAStartMakesIt && placesOf(entry).folder == mailScripts_.mailScriptFolder());
}

Result<> AddinLists::searchOfficeApplication(MailFolder mailFolder) {
  fOfficeAddinArray_.clear();
  fMailAddinArray_.clear();
  if (Result<> loaded = loadAddinPlist(); !loaded) return loaded;
  for (const SharedEntry& candidate : fOfficeArray_) {
    AddinEntry entry = *candidate;
    // One that cannot be looked at stays listed: at the end of the run the others are forgotten.
    if (services_.files.isAbsent(placesOf(entry).application)) continue;
    entry.set(installStatus, getInstallStatus(entry));
    if (kindOf(entry) == AddinKind::office) {
      fOfficeAddinArray_.push_back(std::move(entry));
    } else if (hasScriptFolder(entry, mailFolder)) {
      fMailAddinArray_.push_back(std::move(entry));
    }
  }
  return {};
}

std::vector<AddinEntry> AddinLists::forgotten() const {
  std::vector<AddinEntry> forgotten;
  if (!fDefaultOfficeSetArray_) return forgotten;
  for (const SharedEntry& shipped : *fDefaultOfficeSetArray_) {
    const std::string path = addinText(*shipped, appPath);
    const bool isCandidate = std::ranges::any_of(
        fOfficeArray_, [&path](const SharedEntry& candidate) { return addinText(*candidate, appPath) == path; });
    if (!isCandidate && services_.files.isThere(placesOf(*shipped).application)) forgotten.push_back(*shipped);
  }
  return forgotten;
}

bool AddinLists::getInstallStatus(const AddinEntry& entry) const {
  const Result<FileService::Kind> there = services_.files.kind(placesOf(entry).item);
  return there ? *there != FileService::Kind::absent : isMarkedInstalled(entry);
}

std::vector<Failure> AddinLists::faultsOf(const AddinEntry& entry) const {
  return tarvo::faultsOf(entry, services_.files, services_.locations, services_.bundle);
}

void AddinLists::storeRows() {
  fOfficeArray_.clear();
  Array values;
  for (const std::vector<AddinEntry>* rows : {&fOfficeAddinArray_, &fMailAddinArray_}) {
    for (const AddinEntry& entry : *rows) {
      fOfficeArray_.push_back(std::make_shared<AddinEntry>(entry));
      values.emplace_back(entry);
    }
  }
  services_.defaults.set(office, std::move(values));
  services_.defaults.synchronize();
}

const std::vector<AddinEntry>& AddinLists::rowsOf(AddinKind kind) const {
  return kind == AddinKind::office ? fOfficeAddinArray_ : fMailAddinArray_;
}

void AddinLists::setInstallStatus(AddinPlace place, bool installed) {
  std::vector<AddinEntry>& rows = place.kind == AddinKind::office ? fOfficeAddinArray_ : fMailAddinArray_;
  rows.at(static_cast<std::size_t>(place.row)).set(installStatus, installed);
}

void AddinLists::lookAtMailRows() {
  for (AddinEntry& row : fMailAddinArray_) row.set(installStatus, getInstallStatus(row));
}

}  // namespace tarvo
