// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_folders.h"

#include "platform/services/file_service.h"
#include "platform/services/product_paths.h"

namespace tarvo {

DiskPath dictionaryFolder(const ProductPaths& paths, DictionaryKind kind, Direction direction) {
  if (kind == DictionaryKind::user) return paths.tarvoPathUserDicFolderURL();
  if (kind == DictionaryKind::memory) return paths.tarvoPathUserTmaFolderURL();
  return direction == Direction::englishToJapanese ? paths.tarvoPathTechnicalDicEngFolderURL()
                                                   : paths.tarvoPathTechnicalDicJpnFolderURL();
}

Result<std::vector<std::string>> namesInDictionaryFolder(const FileService& files, const DiskPath& folder) {
  Result<std::vector<std::string>> names = files.list(folder);
  if (names || !isAbsence(names.error())) return names;
  // What is no folder may lie at the path itself, or above it.
  const bool isInTheWay = names.error().cause == std::errc::not_a_directory && !files.isAbsent(folder);
  return isInTheWay ? names : std::vector<std::string>();
}

}  // namespace tarvo
