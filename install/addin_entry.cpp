// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_entry.h"

#include <optional>

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

Result<std::string> addinSource(const AddinEntry& entry, const Bundle& bundle) {
  const std::string& named = addinText(entry, addin_keys::installMacroName);
  const std::string name = addinItemName(entry), subfolder = deletingLastPathComponent(named);
  if (name.empty()) return Failure{addinText(entry, addin_keys::appName), Attempt::install, Reason::nothingNamed};
  // A folder of scripts has no extension: "Tarvo 1.0" is one name.
  std::optional<std::string> source =
      isMailAddin(entry) ? bundle.resource(name, "", subfolder)
                         : bundle.resource(deletingPathExtension(name), pathExtension(name), subfolder);
  if (source) return std::move(*source);
  return Failure{joinPath(bundle.folder(), named), Attempt::install, Reason::missingResource};
}

std::string installedItemPath(const AddinEntry& entry) {
  const std::string name = addinItemName(entry);
  return name.empty() ? "" : joinPath(addinText(entry, addin_keys::installFolderPath), name);
}

}  // namespace tarvo
