// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_entry.h"

#include "platform/services/bundle.h"
#include "platform/text/text_rules.h"

namespace tarvo {

std::string addinText(const AddinEntry& entry, std::string_view key) {
  const std::string* text = entry.string(key);
  return text != nullptr ? *text : "";
}

bool isMailAddin(const AddinEntry& entry) {
  const std::string creator = addinText(entry, addin_keys::appCreator);
  return creator == appleMailCreator || creator == outlookCreator;
}

bool isMarkedInstalled(const AddinEntry& entry) {
  const PropertyList* status = entry.find(addin_keys::installStatus);
  return status != nullptr && status->booleanValue();
}

std::string addinItemName(const AddinEntry& entry) {
  const std::string name = lastPathComponent(addinText(entry, addin_keys::installMacroName));
  return name == "/" || name == "." || name == ".." ? "" : name;
}

std::optional<std::string> addinSource(const AddinEntry& entry, const Bundle& bundle) {
  const std::string name = addinItemName(entry);
  const std::string subfolder = deletingLastPathComponent(addinText(entry, addin_keys::installMacroName));
  // A folder of scripts has no extension: "Tarvo 1.0" is one name.
  if (isMailAddin(entry)) return bundle.resource(name, "", subfolder);
  return bundle.resource(deletingPathExtension(name), pathExtension(name), subfolder);
}

std::string installedItemPath(const AddinEntry& entry) {
  const std::string name = addinItemName(entry);
  return name.empty() ? "" : joinPath(addinText(entry, addin_keys::installFolderPath), name);
}

}  // namespace tarvo
