// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/load_findings.h"

#include <algorithm>
#include <map>

#include "dict/change_words.h"
#include "dict/dictionary_presence.h"
#include "dict/display_names.h"
#include "dict/import_findings.h"
#include "dict/named_lists.h"
#include "platform/services/texts.h"
#include "platform/text/text_rules.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

Names goneIn(const DictController::Services& services, const Dictionary& root, Direction direction) {
  DictionaryPresence files(services, direction);
  if (!files.isKnown()) return {};
  std::map<std::string, std::string> gone;  // by folded names, as they are spelled first
  for (const PropertyList& style : stylesIn(root)) {
    if (style.dictionary() == nullptr) continue;
    const Names names = storedNames(*style.dictionary(), direction);
    const auto isThere = [&files](const std::string& name) { return files.has(name); };
    if (std::ranges::none_of(names, isThere)) continue;
    for (const std::string& name : names) {
      if (!files.has(name)) gone.try_emplace(caseFolded(name), name);
    }
  }
  Names answer;
  for (const auto& [folded, name] : gone) answer.push_back(name);
  return answer;
}

}  // namespace

NamesByDirection goneDictionaries(const DictController::Services& services, const Dictionary& root) {
  NamesByDirection gone;
  for (std::size_t i = 0; i < gone.size(); ++i) gone[i] = goneIn(services, root, bothDirections[i]);
  return gone;
}

std::vector<std::string> goneSentences(const NamesByDirection& gone, const Texts& texts) {
  std::vector<std::string> sentences;
  for (std::size_t i = 0; i < gone.size(); ++i) {
    if (gone[i].empty()) continue;
    const std::string direction = directionName(bothDirections[i], texts);
    sentences.push_back(filledInAll(texts.localized("Loaded.gone"), {direction, enumerated(gone[i], texts)}));
  }
  return sentences;
}

std::string defaultsSentence(const std::vector<std::string>& options, const Texts& texts) {
  Names labels;
  for (const std::string& option : options) labels.push_back(labelOf(option, texts));
  return filledIn(texts.localized("Loaded.defaults"), enumerated(labels, texts));
}

}  // namespace tarvo
