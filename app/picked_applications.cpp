// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/picked_applications.h"

#include <filesystem>

#include "install/addin_entry.h"
#include "platform/services/locations.h"
#include "platform/services/user_defaults.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

bool isThere(const std::string& realPath) {
  std::error_code error;
  return std::filesystem::exists(realPath, error);
}

}  // namespace

void leavePickedApplications(const UserDefaults& defaults, Locations& locations) {
  const PropertyList* remembered = defaults.find(addin_keys::office);
  const Array* records = remembered != nullptr ? remembered->array() : nullptr;
  if (records == nullptr || locations.root() == "/") return;
  for (const PropertyList& record : *records) {
    const std::string path = record.dictionary() != nullptr ? addinText(*record.dictionary(), addin_keys::appPath) : "";
    if (!isAbsolutePath(path) || isThere(locations.resolve(path)) || !isThere(path)) continue;
    locations.leaveAsIs(deletingLastPathComponent(path));
  }
}

}  // namespace tarvo
