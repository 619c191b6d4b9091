// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_creation.h"

#include <optional>

#include "platform/services/bundle.h"
#include "platform/services/file_service.h"

namespace tarvo {

std::string templateName(Direction direction) {
  return (direction == Direction::englishToJapanese ? "EJStationery." : "JEStationery.") +
         std::string(extensionOf(DictionaryKind::user, direction));
}

Result<> makeDictionaryFile(FileService& files, const Bundle& bundle, const DiskPath& path, DictionaryKind kind,
                            Direction direction) {
  const bool isEnglish = direction == Direction::englishToJapanese;
  if (const std::optional<DiskPath> stationery = bundle.resource(templateName(direction), "")) {
    if (Result<> copied = files.copy(*stationery, path); !copied) return copied;
  }
  if (kind == DictionaryKind::user) {
    const Result<> set =
        files.setCodes(path, isEnglish ? fourCharCode("TReu") : fourCharCode("TRju"), fourCharCode("    "));
    (void)set;  // disks that keep no codes refuse; the dictionary works without them
  }
  return {};
}

}  // namespace tarvo
