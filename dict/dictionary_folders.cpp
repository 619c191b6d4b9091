// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_folders.h"

#include "platform/services/product_paths.h"

namespace tarvo {

DiskPath dictionaryFolder(const ProductPaths& paths, DictionaryKind kind, Direction direction) {
  if (kind == DictionaryKind::user) return paths.tarvoPathUserDicFolderURL();
  if (kind == DictionaryKind::memory) return paths.tarvoPathUserTmaFolderURL();
  return direction == Direction::englishToJapanese ? paths.tarvoPathTechnicalDicEngFolderURL()
                                                   : paths.tarvoPathTechnicalDicJpnFolderURL();
}

}  // namespace tarvo
