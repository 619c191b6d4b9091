// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/record_merge.h"

#include <algorithm>
#include <string>

#include "platform/text/text_rules.h"
#include "style/option_table.h"
#include "style/style_keys.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

std::vector<std::string> keysOf(std::initializer_list<const Dictionary*> dictionaries) {
  std::vector<std::string> keys;
  for (const Dictionary* dictionary : dictionaries) {
    for (const auto& [key, value] : dictionary->entries()) keys.push_back(key);
  }
  std::ranges::sort(keys);
  const auto doubled = std::ranges::unique(keys);
  keys.erase(doubled.begin(), doubled.end());
  return keys;
}

std::optional<Direction> halfNamed(std::string_view key) {
  for (const Direction direction : bothDirections) {
    if (key == halfKey(direction)) return direction;
  }
  return std::nullopt;
}

const Dictionary* dictionaryIn(const PropertyList* value) { return value != nullptr ? value->dictionary() : nullptr; }

// A load gives a direction the options that it lacks.
bool isFilledIn(std::optional<Direction> half, std::string_view key, const PropertyList* base,
                const PropertyList* mine) {
  if (half != Direction::japaneseToEnglish || base != nullptr || mine == nullptr) return false;
  return std::ranges::any_of(jeOptionDefaults(),
                             [&](const auto& option) { return option.first == key && option.second == *mine; });
}

// Names of dictionaries are compared ignoring case.
bool isSameName(const PropertyList& one, const PropertyList& other) {
  const std::string *a = one.string(), *b = other.string();
  return a != nullptr && b != nullptr ? equalIgnoringCase(*a, *b) : one == other;
}

bool holds(const Array& list, const PropertyList& name) {
  return std::ranges::any_of(list, [&name](const PropertyList& one) { return isSameName(one, name); });
}

}  // namespace

bool RecordMerge::isUnchangedList(Half half, std::string_view key, const PropertyList* base,
                                  const PropertyList* mine) const {
  if (!half || key != keyNameTD) return false;
  static const Array none;
  const Array* before = base != nullptr ? base->array() : &none;
  const Array* now = mine != nullptr ? mine->array() : &none;
  if (before == nullptr || now == nullptr) return false;
  Array kept;  // of the base's names those that this machine can hold
  for (const PropertyList& name : *before) {
    const bool isGone = name.string() != nullptr && !knowledge_.isOnDisk(*half, *name.string());
    if (!isGone || holds(*now, name)) kept.push_back(name);
  }
  Array chosen;  // of mine without what an installation inserted
  for (const PropertyList& name : *now) {
    const bool isInserted = name.string() != nullptr && knowledge_.isInserted(*half, *name.string());
    if (!isInserted || holds(*before, name)) chosen.push_back(name);
  }
  return std::ranges::equal(kept, chosen, isSameName);
}

bool RecordMerge::areUnchanged(Half half, const Dictionary& base, const Dictionary& mine) const {
  return std::ranges::all_of(keysOf({&base, &mine}), [&](const std::string& key) {
    if (!half && key == keyNameID) return true;
    const PropertyList *before = base.find(key), *now = mine.find(key);
    if (sameValue(before, now) || isUnchangedList(half, key, before, now) || isFilledIn(half, key, before, now))
      return true;
    const std::optional<Direction> inner = half ? std::nullopt : halfNamed(key);
    const Dictionary *halfBefore = dictionaryIn(before), *halfNow = dictionaryIn(now);
    return inner && halfBefore != nullptr && halfNow != nullptr && areUnchanged(inner, *halfBefore, *halfNow);
  });
}

bool RecordMerge::countsAsUnchanged(const PropertyList& base, const PropertyList& mine) const {
  const Dictionary *before = base.dictionary(), *now = mine.dictionary();
  return before != nullptr && now != nullptr ? areUnchanged(std::nullopt, *before, *now) : base == mine;
}

Dictionary RecordMerge::joinKeys(Half half, const Dictionary& base, const Dictionary& mine, const Dictionary& theirs,
                                 std::vector<MergeNote>& notes) const {
  std::vector<Dictionary::Entry> joined;
  const auto take = [&joined](const std::string& key, const PropertyList* value) {
    if (value != nullptr) joined.emplace_back(key, *value);
  };
  for (const std::string& key : keysOf({&base, &mine, &theirs})) {
    const PropertyList *before = base.find(key), *here = mine.find(key), *there = theirs.find(key);
    const std::optional<Direction> inner = half ? std::nullopt : halfNamed(key);
    const Dictionary *halfHere = dictionaryIn(here), *halfThere = dictionaryIn(there);
    if (inner && halfHere != nullptr && halfThere != nullptr) {
      const Dictionary* halfBefore = dictionaryIn(before);
      joined.emplace_back(
          key, joinKeys(inner, halfBefore != nullptr ? *halfBefore : Dictionary(), *halfHere, *halfThere, notes));
      continue;
    }
    const bool isSame = sameValue(here, there), isTheirsOld = sameValue(before, there);
    const bool isMineOld =
        !isSame && (isUnchangedList(half, key, before, here) ||
                    (!isTheirsOld && (sameValue(before, here) || isFilledIn(half, key, before, here))));
    take(key, isMineOld ? there : here);
    const bool isClash = !isSame && !isTheirsOld && !isMineOld;
    if (!isClash || (!half && key == keyNameID)) continue;
    notes.push_back(
        {MergeNote::Kind::otherValue, "", half, key, there != nullptr ? std::optional(*there) : std::nullopt});
  }
  return Dictionary::fromEntries(std::move(joined));
}

PropertyList RecordMerge::join(const PropertyList& base, const PropertyList& mine, const PropertyList& theirs,
                               std::vector<MergeNote>& notes) const {
  const Dictionary *before = base.dictionary(), *here = mine.dictionary(), *there = theirs.dictionary();
  if (here != nullptr && there != nullptr) {
    return joinKeys(std::nullopt, before != nullptr ? *before : Dictionary(), *here, *there, notes);
  }
  return mine == base ? theirs : mine;
}

bool holdsTheSame(const PropertyList& one, const PropertyList& other) {
  const Dictionary *a = one.dictionary(), *b = other.dictionary();
  if (a == nullptr || b == nullptr) return one == other;
  Dictionary first = *a, second = *b;
  first.remove(keyNameID);
  second.remove(keyNameID);
  return first == second;
}

}  // namespace tarvo
