// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_presence.h"

#include "dict/dictionary_folders.h"
#include "platform/text/text_rules.h"

namespace tarvo {

DictionaryPresence::DictionaryPresence(const DictController::Services& services, Direction direction)
    : list_(services) {
  list_.initializeDictController(DictionaryKind::technical,
                                 dictionaryFolder(services.paths, DictionaryKind::technical, direction), direction);
}

bool DictionaryPresence::has(const std::string& fileName) {
  const auto [found, isNew] = known_.try_emplace(caseFolded(fileName));
  if (isNew) found->second = list_.isExitsDic2(fileName);
  return found->second;
}

}  // namespace tarvo
