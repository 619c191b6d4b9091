// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/property_list.h"

#include <algorithm>
#include <limits>

#include "platform/plist/plist_numbers.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

struct KeyOrder {
  bool operator()(const Dictionary::Entry& entry, std::string_view key) const { return entry.first < key; }
  bool operator()(const Dictionary::Entry& a, const Dictionary::Entry& b) const { return a.first < b.first; }
};

template <class Entries>
auto lowerBound(Entries& entries, std::string_view key) {
  return std::lower_bound(entries.begin(), entries.end(), key, KeyOrder{});
}

bool sameKey(const Dictionary::Entry& a, const Dictionary::Entry& b) { return a.first == b.first; }

bool isStrictlyAscending(const std::vector<Dictionary::Entry>& entries) {
  const auto notBefore = [](const auto& a, const auto& b) { return b.first <= a.first; };
  return std::adjacent_find(entries.begin(), entries.end(), notBefore) == entries.end();
}

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

int saturated(const Integer& integer) {
  constexpr std::uint64_t limit = std::uint64_t{1} << 31;
  if (integer.magnitude >= limit) return integer.negative ? smallest : largest;
  const int magnitude = static_cast<int>(integer.magnitude);
  return integer.negative ? -magnitude : magnitude;
}

int saturated(double real) {
  if (real >= largest) return largest;
  if (real <= smallest) return smallest;
  return real == real ? static_cast<int>(real) : 0;
}

}  // namespace

Integer Integer::of(std::int64_t value) { return integerFromBits(static_cast<std::uint64_t>(value)); }

Dictionary Dictionary::fromEntries(std::vector<Entry> entries) {
  if (!isStrictlyAscending(entries)) {
    std::stable_sort(entries.begin(), entries.end(), KeyOrder{});
    const auto firstKept = std::unique(entries.rbegin(), entries.rend(), sameKey).base();  // the last of each key
    entries.erase(entries.begin(), firstKept);
  }
  Dictionary dictionary;
  dictionary.entries_ = std::move(entries);
  return dictionary;
}

const PropertyList* Dictionary::find(std::string_view key) const {
  const auto entry = lowerBound(entries_, key);
  return entry != entries_.end() && entry->first == key ? &entry->second : nullptr;
}

PropertyList* Dictionary::find(std::string_view key) {
  const auto entry = lowerBound(entries_, key);
  return entry != entries_.end() && entry->first == key ? &entry->second : nullptr;
}

void Dictionary::set(std::string_view key, PropertyList value) {
  const auto entry = lowerBound(entries_, key);
  if (entry != entries_.end() && entry->first == key) {
    entry->second = std::move(value);
  } else {
    entries_.emplace(entry, std::string(key), std::move(value));
  }
}

bool Dictionary::remove(std::string_view key) {
  const auto entry = lowerBound(entries_, key);
  if (entry == entries_.end() || entry->first != key) return false;
  entries_.erase(entry);
  return true;
}

const Dictionary* Dictionary::dictionary(std::string_view key) const {
  const PropertyList* value = find(key);
  return value ? value->dictionary() : nullptr;
}

Dictionary* Dictionary::dictionary(std::string_view key) {
  PropertyList* value = find(key);
  return value ? value->dictionary() : nullptr;
}

const Array* Dictionary::array(std::string_view key) const {
  const PropertyList* value = find(key);
  return value ? value->array() : nullptr;
}

Array* Dictionary::array(std::string_view key) {
  PropertyList* value = find(key);
  return value ? value->array() : nullptr;
}

const std::string* Dictionary::string(std::string_view key) const {
  const PropertyList* value = find(key);
  return value ? value->string() : nullptr;
}

int Dictionary::integerValue(std::string_view key) const {
  const PropertyList* value = find(key);
  return value ? value->integerValue() : 0;
}

bool operator==(const Dictionary& a, const Dictionary& b) { return a.entries_ == b.entries_; }

PropertyList::PropertyList() : value_(Dictionary{}) {}
PropertyList::PropertyList(bool value) : value_(value) {}
PropertyList::PropertyList(int value) : value_(Integer::of(value)) {}
PropertyList::PropertyList(Integer value) : value_(value) {}
PropertyList::PropertyList(Real value) : value_(std::move(value)) {}
PropertyList::PropertyList(Date value) : value_(std::move(value)) {}
PropertyList::PropertyList(const char* value) : value_(std::string(value)) {}
PropertyList::PropertyList(std::string value) : value_(std::move(value)) {}
PropertyList::PropertyList(std::string_view value) : value_(std::string(value)) {}
PropertyList::PropertyList(Data value) : value_(std::move(value)) {}
PropertyList::PropertyList(Array value) : value_(std::move(value)) {}
PropertyList::PropertyList(Dictionary value) : value_(std::move(value)) {}

int PropertyList::integerValue() const {
  if (const auto* boolean = std::get_if<bool>(&value_)) return *boolean ? 1 : 0;
  if (const auto* integer = std::get_if<Integer>(&value_)) return saturated(*integer);
  if (const auto* real = std::get_if<Real>(&value_)) return saturated(realFromText(real->text).value_or(0));
  if (const auto* text = string()) return leadingInteger(*text);
  return 0;
}

bool PropertyList::hasIntegerValue() const {
  return boolean() || string() || std::holds_alternative<Integer>(value_) || std::holds_alternative<Real>(value_);
}

bool PropertyList::booleanValue() const {
  const std::string* text = string();
  if (text && text->find_first_of("YyTt") == 0) return true;
  return integerValue() != 0;
}

int depthOf(const PropertyList& value) {
  int below = 0;
  if (const Array* array = value.array()) {
    for (const PropertyList& element : *array) below = std::max(below, depthOf(element));
  } else if (const Dictionary* dictionary = value.dictionary()) {
    for (const auto& [key, element] : dictionary->entries()) below = std::max(below, depthOf(element));
  }
  return below + 1;
}

}  // namespace tarvo
