// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_entry.h"

#include "platform/text_rules.h"

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

std::string addinItemFolder(const AddinEntry& entry) {
  return deletingLastPathComponent(addinText(entry, addin_keys::installMacroName));
}

std::string installedItemPath(const AddinEntry& entry) {
  const std::string name = addinItemName(entry);
  return name.empty() ? "" : joinPath(addinText(entry, addin_keys::installFolderPath), name);
}

}  // namespace tarvo
