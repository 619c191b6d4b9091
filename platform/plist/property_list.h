// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

// A property list as a plain value tree.
// Duty: hold what a property-list file holds, type for type, so that it can be written back unchanged. Not: reading or
// writing files. Values own everything below them; a copy is deep and independent. Strings are UTF-8.
namespace tarvo {

class PropertyList;

// An integer of the file: sign and 64 bits of magnitude, so that both int64 and uint64 survive. Zero is never negative.
struct Integer {
  std::uint64_t magnitude = 0;
  bool negative = false;
  static Integer of(std::int64_t value);
  friend bool operator==(const Integer&, const Integer&) = default;
};

// A real keeps the text it was written with, white space around it aside; one that comes from a binary file has its
// shortest exact decimal form.
struct Real {
  std::string text;
  friend bool operator==(const Real&, const Real&) = default;
};

// A date as in the XML form, ISO 8601 in UTC with whole seconds: "2009-01-31T12:00:00Z".
struct Date {
  std::string text;
  friend bool operator==(const Date&, const Date&) = default;
};

using Data = std::vector<std::byte>;
using Array = std::vector<PropertyList>;

// Keys are case-sensitive and stand ascending by their UTF-8 bytes: one fixed order in memory and on disk.
class Dictionary {
 public:
  using Entry = std::pair<std::string, PropertyList>;
  // From entries in any order, in n log n; of entries with one key the last stays.
  static Dictionary fromEntries(std::vector<Entry> entries);
  const PropertyList* find(std::string_view key) const;
  PropertyList* find(std::string_view key);
  bool contains(std::string_view key) const { return find(key) != nullptr; }
  void set(std::string_view key, PropertyList value);
  bool remove(std::string_view key);  // whether the key was there
  // What a key holds when it holds that kind; null when it is absent or holds another kind.
  const Dictionary* dictionary(std::string_view key) const;
  Dictionary* dictionary(std::string_view key);
  const Array* array(std::string_view key) const;
  Array* array(std::string_view key);
  const std::string* string(std::string_view key) const;
  int integerValue(std::string_view key) const;  // 0 when absent
  const std::vector<Entry>& entries() const { return entries_; }
  std::size_t size() const;
  bool empty() const;
  friend bool operator==(const Dictionary&, const Dictionary&);

 private:
  std::vector<Entry> entries_;
};

class PropertyList {
 public:
  using Value = std::variant<bool, Integer, Real, Date, std::string, Data, Array, Dictionary>;

  PropertyList();  // an empty dictionary
  PropertyList(bool value);
  PropertyList(int value);
  PropertyList(Integer value);
  PropertyList(Real value);
  PropertyList(Date value);
  PropertyList(const char* value);
  PropertyList(std::string value);
  PropertyList(std::string_view value);
  PropertyList(Data value);
  PropertyList(Array value);
  PropertyList(Dictionary value);

  const Value& value() const { return value_; }
  const Array* array() const { return std::get_if<Array>(&value_); }
  Array* array() { return std::get_if<Array>(&value_); }
  const Dictionary* dictionary() const { return std::get_if<Dictionary>(&value_); }
  Dictionary* dictionary() { return std::get_if<Dictionary>(&value_); }
  const std::string* string() const { return std::get_if<std::string>(&value_); }  // never a conversion
  const bool* boolean() const { return std::get_if<bool>(&value_); }

  // The value as a 32-bit integer. Integers saturate; a boolean is 0 or 1; a real is cut toward zero and saturates; a
  // string gives its leading decimal digits (white space, then one sign allowed before them), else 0; every other kind
  // is 0. The value itself is not changed.
  int integerValue() const;
  // Whether integerValue() reads a value of this kind: integer, boolean, real or string.
  bool hasIntegerValue() const;
  // integerValue() != 0; a string also when it begins with Y, y, T or t.
  bool booleanValue() const;

  friend bool operator==(const PropertyList&, const PropertyList&) = default;

 private:
  Value value_;
};

// How deep a value goes: 1 for one that holds no others, else one more than the deepest of those.
int depthOf(const PropertyList& value);

// Down here because an entry is a complete type only now.
inline std::size_t Dictionary::size() const { return entries_.size(); }
inline bool Dictionary::empty() const { return entries_.empty(); }

}  // namespace tarvo
