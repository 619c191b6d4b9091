// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/doctor_folders.h"

#include <set>

#include "app/product.h"
#include "app/user_files.h"
#include "dict/dictionary_folders.h"
#include "platform/services/file_service.h"

namespace tarvo {

namespace {

// The folders in which the product keeps something, and those above them up to the home.
std::set<DiskPath> foldersOf(Product& product) {
  const Locations& locations = product.locations();
  const std::vector<DiskPath> ofTheUser = userFolders(locations, product.paths());
  std::set<DiskPath> folders(ofTheUser.begin(), ofTheUser.end());
  for (const Direction direction : bothDirections)
    folders.insert(dictionaryFolder(product.paths(), DictionaryKind::technical, direction));
  std::set<DiskPath> above;
  for (DiskPath folder : folders) {
    for (; folder.isIn(locations.home()) && folder != locations.home(); folder = folder.folder())
      above.insert(folder.folder());
  }
  folders.merge(above);
  return folders;
}

}  // namespace

std::vector<Finding> examineFolders(Product& product) {
  std::vector<Finding> findings;
  const Configuration& configuration = product.configuration();
  if (const DiskPath* file = configuration.fileOf(configuration_keys::privateFolders)) {
    const bool isOn = configuration.boolean(configuration_keys::privateFolders);
    findings.push_back({file->text(), configuration_keys::privateFolders, "ok", isOn ? "true" : "false"});
  }
  for (const DiskPath& folder : foldersOf(product)) {
    if (product.files().writersOf(folder) != FileService::Writers::everybody) continue;
    const bool isInHome = folder.isIn(product.locations().home());
    findings.push_back({product.locations().shown(folder), "folder", "ok",
                        product.texts().localized("Doctor.OpenFolder"),
                        product.texts().localized(isInHome ? "Cure.OpenFolderOfHome" : "Cure.OpenFolder")});
  }
  return findings;
}

}  // namespace tarvo
