// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_pairing.h"

#include <algorithm>
#include <map>

#include "platform/text/text_rules.h"
#include "style/style_keys.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

using NamesOfSet = std::vector<std::string>;
using PlacesOfNames = std::map<std::string, std::vector<std::size_t>>;  // ascending

NamesOfSet foldedNames(const Array& set) {
  NamesOfSet names;
  names.reserve(set.size());
  for (const PropertyList& record : set) names.push_back(caseFolded(recordName(record)));
  return names;
}

PlacesOfNames placesOf(const NamesOfSet& names) {
  PlacesOfNames places;
  for (std::size_t i = 0; i < names.size(); ++i) places[names[i]].push_back(i);
  return places;
}

class Pairs {
 public:
  Pairs(const Array& one, const Array& other)
      : one_(foldedNames(one)), other_(foldedNames(other)), pairing_(one_.size()), taken_(other_.size()) {}

  Pairing all() {
    const std::size_t common = std::min(one_.size(), other_.size());
    for (std::size_t i = 0; i < common; ++i) {
      if (one_[i] == other_[i]) pair(i, i);
    }
    pairEqualNames();
    const PlacesOfNames inOne = placesOf(one_), inOther = placesOf(other_);
    for (std::size_t i = 0; i < common; ++i) {
      const bool isRename = !inOther.contains(one_[i]) && !inOne.contains(other_[i]);
      if (isRename) pair(i, i);
    }
    return std::move(pairing_);
  }

 private:
  void pair(std::size_t one, std::size_t other) {
    pairing_[one] = other;
    taken_[other] = true;
  }

  void pairEqualNames() {
    PlacesOfNames free;
    for (std::size_t i = other_.size(); i-- > 0;) {
      if (!taken_[i]) free[other_[i]].push_back(i);  // the first place last
    }
    for (std::size_t i = 0; i < one_.size(); ++i) {
      const auto places = free.find(one_[i]);
      if (pairing_[i] || places == free.end() || places->second.empty()) continue;
      pair(i, places->second.back());
      places->second.pop_back();
    }
  }

  NamesOfSet one_, other_;
  Pairing pairing_;
  std::vector<bool> taken_;
};

}  // namespace

Pairing pairRecords(const Array& one, const Array& other) { return Pairs(one, other).all(); }

std::vector<std::size_t> unpairedPlaces(const Pairing& pairing, std::size_t count) {
  std::vector<bool> taken(count);
  for (const auto& place : pairing) {
    if (place) taken[*place] = true;
  }
  std::vector<std::size_t> unpaired;
  for (std::size_t i = 0; i < count; ++i) {
    if (!taken[i]) unpaired.push_back(i);
  }
  return unpaired;
}

void moveSelection(Dictionary& root, const std::vector<std::optional<std::size_t>>& places) {
  Dictionary* selection = root.dictionary(keyNameSelection);
  if (selection == nullptr) return;
  Dictionary moved = *selection;
  for (const auto& [tool, style] : selection->entries()) {
    if (!style.hasIntegerValue()) continue;
    const int index = style.integerValue();
    if (index < 0 || std::cmp_greater_equal(index, places.size())) continue;
    moved.set(tool, static_cast<int>(places[static_cast<std::size_t>(index)].value_or(0)));
  }
  *selection = std::move(moved);
}

}  // namespace tarvo
