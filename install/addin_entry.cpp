// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_entry.h"

#include <optional>

#include "platform/services/bundle.h"
#include "platform/services/locations.h"
#include "platform/text/text_rules.h"

namespace tarvo {

std::string addinText(const AddinEntry& entry, std::string_view key) {
  const std::string* text = entry.string(key);
  return text != nullptr ? *text : "";
}

AddinKind kindOf(const AddinEntry& entry) {
  const std::string creator = addinText(entry, addin_keys::appCreator);
  return creator == appleMailCreator || creator == outlookCreator ? AddinKind::mail : AddinKind::office;
}

bool isMarkedInstalled(const AddinEntry& entry) {
  const PropertyList* status = entry.find(addin_keys::installStatus);
  return status != nullptr && status->booleanValue();
}

std::string addinItemName(const AddinEntry& entry) {
  const std::string name = lastPathComponent(addinText(entry, addin_keys::installMacroName));
  return name == "/" || name == "." || name == ".." ? "" : name;
}

Result<DiskPath> addinSource(const AddinEntry& entry, const Bundle& bundle) {
  const std::string& named = addinText(entry, addin_keys::installMacroName);
  const std::string name = addinItemName(entry), subfolder = deletingLastPathComponent(named);
  if (name.empty()) return Failure{addinText(entry, addin_keys::appName), Attempt::install, Reason::nothingNamed};
  // A folder of scripts has no extension: "Tarvo 1.0" is one name.
  std::optional<DiskPath> source = kindOf(entry) == AddinKind::mail
                                       ? bundle.resource(name, "", subfolder)
                                       : bundle.resource(deletingPathExtension(name), pathExtension(name), subfolder);
  if (source) return std::move(*source);
  return Failure{(bundle.folder() / named).text(), Attempt::install, Reason::missingResource};
}

AddinPlaces placesOf(const AddinEntry& entry, const Locations& locations, const FileService& files) {
  const std::string path = addinText(entry, addin_keys::appPath),
                    stored = addinText(entry, addin_keys::installFolderPath);
  AddinPlaces places{storedPath(path, locations, files), locations.onDisk(ProductPath(stored)), {}};
  const bool isPicked = places.application != locations.onDisk(ProductPath(path));
  if (isPicked && DiskPath(stored).isIn(places.application.folder())) places.folder = DiskPath(stored);
  if (const std::string name = addinItemName(entry); !name.empty()) places.item = places.folder / name;
  return places;
}

}  // namespace tarvo
