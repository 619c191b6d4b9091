// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_creation.h"

#include <optional>

#include "platform/services/bundle.h"
#include "platform/services/file_service.h"

namespace tarvo {

namespace {

FourCharCode userDictionaryType(Direction direction) {
  return direction == Direction::englishToJapanese ? fourCharCode("TReu") : fourCharCode("TRju");
}

}  // namespace

std::string templateName(Direction direction) {
  return (direction == Direction::englishToJapanese ? "EJStationery." : "JEStationery.") +
         std::string(extensionOf(DictionaryKind::user, direction));
}

Result<> makeDictionaryFile(FileService& files, const Bundle& bundle, const DiskPath& path, DictionaryKind kind,
                            Direction direction) {
  const std::optional<DiskPath> stationery = bundle.resource(templateName(direction), "");
  if (!stationery) return {};
  std::optional<FinderCodes> codes;
  if (kind == DictionaryKind::user) codes = {userDictionaryType(direction), fourCharCode("    ")};
  return files.copyAs(*stationery, path, codes);
}

}  // namespace tarvo
