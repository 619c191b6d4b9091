// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/merge_knowledge.h"

#include <memory>

#include "dict/dictionary_presence.h"
#include "dict/medical_dictionaries.h"
#include "style/divider.h"

namespace tarvo {

MergeKnowledge mergeKnowledge(const DictController::Services& services, const MedicalDictionaries& medical) {
  const auto presence = [&services](Direction direction) {
    return std::make_shared<DictionaryPresence>(services, direction);
  };
  const auto ej = presence(Direction::englishToJapanese), je = presence(Direction::japaneseToEnglish);
  return {.isOnDisk =
              [ej, je](Direction direction, const std::string& fileName) {
                DictionaryPresence& files = direction == Direction::englishToJapanese ? *ej : *je;
                return !files.isKnown() || files.has(fileName);
              },
          .isInserted = [&medical](Direction direction,
                                   const std::string& fileName) { return medical.inserts(direction, fileName); },
          .isDivider = [texts = &services.texts](const Dictionary& record) { return isDivider(record, *texts); }};
}

}  // namespace tarvo
