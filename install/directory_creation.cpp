// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/directory_creation.h"

#include <sstream>

#include "platform/services/file_service.h"
#include "platform/text/text_rules.h"

namespace tarvo {

Result<> createDirectoryFromPath(FileService& files, const std::string& relativePath, const DiskPath& parentPath) {
  std::istringstream components(relativePath);
  DiskPath current = parentPath;
  for (std::string component; std::getline(components, component, '/');) {
    if (component.empty()) continue;
    current = current / component;
    if (files.isThere(current)) continue;
    if (Result<> made = files.makeFolder(current); !made) return made;
  }
  return {};
}

}  // namespace tarvo
