// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/arrived_changes.h"

#include <set>
#include <string>
#include <utility>

#include "style/style_pairing.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

std::set<std::string> keysOf(const Dictionary& one, const Dictionary& other) {
  std::set<std::string> keys;
  for (const Dictionary* dictionary : {&one, &other}) {
    for (const auto& [key, value] : dictionary->entries()) keys.insert(key);
  }
  return keys;
}

const Dictionary* dictionaryIn(const PropertyList* value) { return value != nullptr ? value->dictionary() : nullptr; }

// Key by key; the two directions are dictionaries of their own.
Dictionary arrived(const Dictionary& base, const Dictionary& sent, const Dictionary& theirs) {
  Dictionary joined = base;
  for (const std::string& key : keysOf(base, sent)) {
    const PropertyList *before = base.find(key), *gone = sent.find(key), *shown = theirs.find(key);
    const Dictionary *half = dictionaryIn(before), *halfSent = dictionaryIn(gone), *halfShown = dictionaryIn(shown);
    if (half != nullptr && halfSent != nullptr && halfShown != nullptr) {
      joined.set(key, arrived(*half, *halfSent, *halfShown));
    } else if (sameValue(gone, shown)) {
      if (gone != nullptr) joined.set(key, *gone);
      if (gone == nullptr) joined.remove(key);
    }
  }
  return joined;
}

}  // namespace

Array withArrivedChanges(const Array& base, const Array& sent, const Array& theirs) {
  const Pairing inBase = pairRecords(sent, base), inTheirs = pairRecords(sent, theirs);
  const Pairing shownOf = pairRecords(base, theirs);
  Array joined = base;
  std::set<std::size_t> removed;
  for (std::size_t i = 0; i < sent.size(); ++i) {
    if (!inTheirs[i]) continue;
    const PropertyList& shown = theirs[*inTheirs[i]];
    if (!inBase[i]) {
      joined.push_back(sent[i]);
      continue;
    }
    PropertyList& record = joined[*inBase[i]];
    const Dictionary *before = record.dictionary(), *gone = sent[i].dictionary(), *there = shown.dictionary();
    if (before != nullptr && gone != nullptr && there != nullptr) record = arrived(*before, *gone, *there);
  }
  for (const std::size_t place : unpairedPlaces(inBase, base.size())) {
    if (!shownOf[place]) removed.insert(place);
  }
  for (auto place = removed.rbegin(); place != removed.rend(); ++place) {
    joined.erase(joined.begin() + static_cast<std::ptrdiff_t>(*place));
  }
  return joined;
}

}  // namespace tarvo
