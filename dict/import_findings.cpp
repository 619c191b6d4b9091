// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/import_findings.h"

#include <algorithm>
#include <cstddef>
#include <set>

#include "dict/dictionary_folders.h"
#include "dict/display_names.h"
#include "dict/named_lists.h"
#include "platform/services/file_service.h"
#include "platform/services/texts.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

// Names, letter case aside.
class NameSet {
 public:
  explicit NameSet(const Names& names = {}) {
    for (const std::string& name : names) add(name);
  }
  bool add(const std::string& name) { return folded_.insert(caseFolded(name)).second; }  // whether it was new
  bool has(const std::string& name) const { return folded_.contains(caseFolded(name)); }

 private:
  std::set<std::string> folded_;
};

bool isKnown(const DictController::Services& services, Direction direction) {
  const DiskPath folder = dictionaryFolder(services.paths, DictionaryKind::technical, direction);
  return namesInDictionaryFolder(services.files, folder).has_value();
}

ImportFindings::List findIn(const DictController::Services& services, Direction direction, const Dictionary& imported,
                            const Dictionary& stored) {
  ImportFindings::List found;
  NameSet seen, doubled, gone;
  for (const std::string& name : storedNames(imported, direction)) {
    if (!seen.add(name) && doubled.add(name)) found.doubled.push_back(name);
  }
  if (!isKnown(services, direction)) return found;
  const NameSet kept(storedNames(stored, direction));
  for (const std::string& name : readList(services, imported, direction).missing) {
    if (gone.add(name)) (kept.has(name) ? found.missing : found.dropped).push_back(name);
  }
  return found;
}

}  // namespace

std::string enumerated(const Names& names, const Texts& texts) {
  constexpr std::size_t most = 8;
  std::string text;
  for (std::size_t i = 0; i < std::min(names.size(), most); ++i) text += (i == 0 ? "" : ", ") + names[i];
  if (names.size() <= most) return text;
  return filledInAll(texts.localized("Imported.andMore"), {text, std::to_string(names.size() - most)});
}

ImportFindings importFindings(const DictController::Services& services, const Dictionary& imported,
                              const Dictionary& stored) {
  ImportFindings findings;
  for (std::size_t i = 0; i < findings.lists.size(); ++i) {
    findings.lists[i] = findIn(services, bothDirections[i], imported, stored);
  }
  findings.unkeepable = unkeepableTexts(imported);
  return findings;
}

std::vector<std::string> importSentences(const ImportFindings& findings, const Texts& texts) {
  std::vector<std::string> sentences;
  for (std::size_t i = 0; i < findings.lists.size(); ++i) {
    const ImportFindings::List& list = findings.lists[i];
    const auto say = [&](const char* key, const Names& names) {
      if (names.empty()) return;
      sentences.push_back(
          filledInAll(texts.localized(key), {directionName(bothDirections[i], texts), enumerated(names, texts)}));
    };
    say("Imported.missing", list.missing);
    say("Imported.dropped", list.dropped);
    say("Imported.doubled", list.doubled);
  }
  Names unkeepable;
  for (const PlistFinding& finding : findings.unkeepable) unkeepable.push_back(finding.keys);
  if (!unkeepable.empty()) {
    sentences.push_back(filledInAll(texts.localized("Imported.unkeepable"), {enumerated(unkeepable, texts)}));
  }
  return sentences;
}

}  // namespace tarvo
