// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/file_service.h"

#include <algorithm>

#include "platform/text/text_rules.h"

namespace tarvo {

bool existsIgnoringCase(const FileService& files, const std::string& path) {
  if (files.exists(path)) return true;
  const std::string folder = deletingLastPathComponent(path);
  const std::string name = lastPathComponent(path);
  const auto names = files.list(folder);
  return names && std::any_of(names->begin(), names->end(), [&](const std::string& other) {
           return equalIgnoringCase(other, name) && files.exists(joinPath(folder, other));
         });
}

}  // namespace tarvo
