// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_creation.h"

#include <optional>

#include "platform/services/bundle.h"
#include "platform/services/file_service.h"

namespace tarvo {

bool makeDictionaryFile(FileService& files, const Bundle& bundle, const std::string& path, int dicType,
                        bool isEnglish) {
  const std::optional<std::string> stationery =
      isEnglish ? bundle.resource("EJStationery", "eud2") : bundle.resource("JEStationery", "jud");
  if (stationery && !files.copy(*stationery, path)) return false;
  if (dicType == 1) {
    // Disks that keep no codes refuse; the dictionary works without them.
    files.setCodes(path, isEnglish ? fourCharCode("TReu") : fourCharCode("TRju"), fourCharCode("    "));
  }
  return true;
}

}  // namespace tarvo
