// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_changes.h"

#include <algorithm>
#include <set>

#include "style/style_keys.h"
#include "style/style_pairing.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

using Kind = StyleChange::Kind;

std::vector<std::string> namesIn(const PropertyList* list) {
  std::vector<std::string> names;
  const Array* values = list != nullptr ? list->array() : nullptr;
  for (const PropertyList& value : values != nullptr ? *values : Array()) {
    if (value.string() != nullptr) names.push_back(*value.string());
  }
  return names;
}

class RecordChanges {
 public:
  explicit RecordChanges(std::string style) : style_(std::move(style)) {}

  void compare(std::optional<Direction> half, const Dictionary& before, const Dictionary& after) {
    std::set<std::string_view> keys;
    for (const Dictionary* one : {&before, &after}) {
      for (const auto& [key, value] : one->entries()) keys.insert(key);
    }
    for (const std::string_view key : keys) compareKey(half, std::string(key), before.find(key), after.find(key));
  }

  std::vector<StyleChange> take() { return std::move(changes_); }

 private:
  void compareKey(std::optional<Direction> half, const std::string& key, const PropertyList* before,
                  const PropertyList* after) {
    if (sameValue(before, after) || (!half && key == keyNameID)) return;
    if (!half && key == keyNameName) return note(Kind::renamed, half, key, before, after);
    if (half && key == keyNameTD) return compareLists(*half, namesIn(before), namesIn(after));
    for (const Direction direction : bothDirections) {
      if (half || key != halfKey(direction)) continue;
      static const Dictionary none;
      const Dictionary* was = before != nullptr ? before->dictionary() : &none;
      const Dictionary* is = after != nullptr ? after->dictionary() : &none;
      if (was != nullptr && is != nullptr) return compare(direction, *was, *is);
    }
    note(Kind::value, half, key, before, after);
  }

  void compareLists(Direction direction, const std::vector<std::string>& before,
                    const std::vector<std::string>& after) {
    const auto isIn = [](const std::vector<std::string>& list, const std::string& name) {
      return std::ranges::find(list, name) != list.end();
    };
    std::vector<std::string> stayed, stay;
    for (const std::string& name : before) {
      if (isIn(after, name)) {
        stayed.push_back(name);
      } else {
        note(Kind::dictionaryRemoved, direction, name, nullptr, nullptr);
      }
    }
    for (const std::string& name : after) {
      if (isIn(before, name)) {
        stay.push_back(name);
      } else {
        note(Kind::dictionaryAdded, direction, name, nullptr, nullptr);
      }
    }
    if (stayed != stay) note(Kind::dictionariesMoved, direction, "", nullptr, nullptr);
  }

  void note(Kind kind, std::optional<Direction> half, const std::string& key, const PropertyList* before,
            const PropertyList* after) {
    const auto copied = [](const PropertyList* value) {
      return value != nullptr ? std::optional(*value) : std::nullopt;
    };
    changes_.push_back({kind, style_, half, key, copied(before), copied(after)});
  }

  std::string style_;
  std::vector<StyleChange> changes_;
};

}  // namespace

std::vector<StyleChange> recordChanges(const PropertyList& before, const PropertyList& after) {
  if (before == after) return {};
  const Dictionary *was = before.dictionary(), *is = after.dictionary();
  if (was == nullptr || is == nullptr) return {{Kind::value, recordName(after), {}, "", before, after}};
  RecordChanges changes(recordName(after));
  changes.compare(std::nullopt, *was, *is);
  return changes.take();
}

std::vector<StyleChange> styleChanges(const Array& before, const Array& after) {
  if (before == after) return {};
  const Pairing formerPlaces = pairRecords(after, before);
  std::vector<StyleChange> changes;
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < after.size(); ++i) {
    const auto& place = formerPlaces[i];
    if (!place) {
      changes.push_back({Kind::added, recordName(after[i]), {}, "", {}, {}});
      continue;
    }
    order.push_back(*place);
    std::ranges::move(recordChanges(before[*place], after[i]), std::back_inserter(changes));
  }
  for (const std::size_t place : unpairedPlaces(formerPlaces, before.size())) {
    changes.push_back({Kind::removed, recordName(before[place]), {}, "", {}, {}});
  }
  if (!std::ranges::is_sorted(order)) changes.push_back({Kind::moved, "", {}, "", {}, {}});
  return changes;
}

}  // namespace tarvo
