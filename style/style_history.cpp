// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_history.h"

#include <algorithm>
#include <utility>

#include "platform/text/text_rules.h"
#include "style/style_edits.h"
#include "style/style_keys.h"
#include "style/style_records.h"
#include "style/style_store.h"

namespace tarvo {

namespace {

// A choice of a style that there is not becomes one of the first.
Dictionary choicesAmong(std::size_t count, const Dictionary& selection) {
  Dictionary choices = selection;
  for (const auto& [tool, style] : selection.entries()) {
    if (style.hasIntegerValue() && std::cmp_greater_equal(style.integerValue(), count)) choices.set(tool, 0);
  }
  return choices;
}

// The record that a style has been, as far as its name or its place tells.
const Dictionary* formerRecord(const Array& styles, const std::string& name, std::size_t place) {
  const auto sameName = std::ranges::find_if(
      styles, [&name](const PropertyList& one) { return equalIgnoringCase(recordName(one), name); });
  if (sameName != styles.end() && sameName->dictionary() != nullptr) return sameName->dictionary();
  return place < styles.size() ? styles[place].dictionary() : nullptr;
}

}  // namespace

StyleHistory::StyleHistory(const EarlierStyles& earlier, std::vector<EarlierSet> sets, Result<Array> present)
    : earlier_(earlier), present_(std::move(present)), sets_(std::move(sets)) {}

const Result<Array>& StyleHistory::stylesOf(std::size_t place) {
  constexpr std::size_t mostRead = 2;
  if (const auto known = read_.find(place); known != read_.end()) return known->second;
  if (read_.size() >= mostRead) read_.erase(place > read_.begin()->first ? read_.begin() : std::prev(read_.end()));
  const Result<Dictionary> root = earlier_.read(sets_[place]);
  Result<Array> styles = root ? Result<Array>(stylesIn(*root)) : Result<Array>(root.error());
  return read_.emplace(place, std::move(styles)).first->second;
}

// What followed: the next newer set that can be read, else the present one.
const Result<Array>& StyleHistory::followerOf(std::size_t place) {
  while (place > 0) {
    if (const Result<Array>& styles = stylesOf(--place)) return styles;
  }
  return present_;
}

const HistoryEntry& StyleHistory::entry(std::size_t place) {
  if (const auto known = entries_.find(place); known != entries_.end()) return known->second;
  HistoryEntry entry{.set = sets_[place], .changes = {}, .damage = {}, .unread = {}};
  const Result<Array> follower = followerOf(place);
  const Result<Array>& styles = stylesOf(place);
  if (!styles) {
    entry.damage = styles.error();
  } else if (!follower) {
    entry.unread = follower.error();
  } else {
    entry.changes = styleChanges(*styles, *follower);
  }
  return entries_.emplace(place, std::move(entry)).first->second;
}

std::optional<EarlierSet> setWithId(std::vector<EarlierSet> sets, const std::string& word) {
  std::optional<EarlierSet> found;
  if (word.empty()) return found;
  for (EarlierSet& set : sets) {
    if (set.id == word) return std::move(set);
    if (!set.id.starts_with(word)) continue;
    if (found) return std::nullopt;
    found = std::move(set);
  }
  return found;
}

std::optional<EarlierSet> newestWhole(const EarlierStyles& earlier) {
  const Result<std::vector<EarlierSet>> sets = earlier.list();
  if (!sets) return std::nullopt;
  const auto whole = std::ranges::find_if(*sets, [&](const EarlierSet& set) {
    const Result<Dictionary> root = earlier.read(set);
    return root && holdsStyles(*root);
  });
  return whole != sets->end() ? std::optional(*whole) : std::nullopt;
}

bool restoreStyles(StyleStore& store, const Dictionary& earlier) {
  if (!holdsStyles(earlier)) return false;
  Dictionary root = store.root().entries().empty() ? earlier : store.root();
  root.set(keyNameStyle, stylesIn(earlier));
  if (const Dictionary* selection = earlier.dictionary(keyNameSelection)) {
    root.set(keyNameSelection, *selection);
  } else if (const Dictionary* present = root.dictionary(keyNameSelection)) {
    root.set(keyNameSelection, choicesAmong(stylesIn(earlier).size(), *present));
  }
  store.endStandIn();
  store.replaceRoot(std::move(root), ChangeKind::restore);
  return true;
}

bool restoreStyle(StyleStore& store, int index, const Dictionary& earlier, const std::string& standardName) {
  const std::optional<Dictionary> present = store.getStyleAtIndex(index);
  if (!present) return false;
  const std::string name = styleName(*present);
  const Array styles = stylesIn(earlier);
  const Dictionary* former = formerRecord(styles, name, static_cast<std::size_t>(index));
  if (former == nullptr) return false;
  Dictionary record = *former;
  const bool isFree = index != 0 && isNameFree(store.getAllStyle(), index, styleName(record), standardName);
  if (!isFree) record.set(keyNameName, name);
  if (const PropertyList* id = present->find(keyNameID)) record.set(keyNameID, *id);
  store.setStyle(index, std::move(record), ChangeKind::restore);
  return true;
}

void addEarlierStyle(StyleStore& store, int place, const Dictionary& earlier, const std::string& standardName) {
  Array styles = stylesIn(store.root());
  Dictionary record = *stylesIn(earlier)[static_cast<std::size_t>(place)].dictionary();
  const auto isNamesake = [&record](const PropertyList& one) {
    return equalIgnoringCase(recordName(one), styleName(record));
  };
  const auto present = place == 0 ? styles.begin() : std::ranges::find_if(styles, isNamesake);
  if (present != styles.end()) {
    const bool isDone = restoreStyle(store, static_cast<int>(present - styles.begin()), earlier, standardName);
    if (isDone) return;
  }
  int number = static_cast<int>(styles.size());
  const auto hasNumber = [&number](const PropertyList& one) {
    const Dictionary* other = one.dictionary();
    return other != nullptr && other->integerValue(keyNameID) == number;
  };
  while (std::ranges::any_of(styles, hasNumber)) ++number;
  record.set(keyNameID, number);
  styles.emplace_back(std::move(record));
  Dictionary root = store.root();
  root.set(keyNameStyle, std::move(styles));
  store.replaceRoot(std::move(root), ChangeKind::restore);
}

}  // namespace tarvo
