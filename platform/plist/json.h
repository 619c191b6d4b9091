// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/plist/property_list.h"

// JSON as the console prints and compares it.
// Integers, reals and booleans are distinct: 1, 1.0 and true differ. A real always shows "." or "e". Keys of objects
// stand ascending by their UTF-8 bytes. Format: RFC 8259.
namespace tarvo {

class Json {
 public:
  using List = std::vector<Json>;
  using Object = std::map<std::string, Json, std::less<>>;
  using Value = std::variant<std::nullptr_t, bool, Integer, Real, std::string, List, Object>;

  Json() : value_(nullptr) {}
  Json(std::nullptr_t) : value_(nullptr) {}
  Json(bool value) : value_(value) {}
  Json(int value) : value_(Integer::of(value)) {}
  Json(Integer value) : value_(value) {}
  Json(Real value) : value_(std::move(value)) {}
  Json(const char* value) : value_(std::string(value)) {}
  Json(std::string value) : value_(std::move(value)) {}
  Json(std::string_view value) : value_(std::string(value)) {}
  Json(List value) : value_(std::move(value)) {}
  Json(Object value) : value_(std::move(value)) {}

  const Value& value() const { return value_; }
  // Reals compare by number; everything else by kind and value.
  friend bool operator==(const Json& a, const Json& b);

 private:
  Value value_;
};

// One line, without a line break. Bytes that are no UTF-8 become U+FFFD.
std::string writeJson(const Json& value);
// Nothing when the text is no JSON (half a surrogate pair and bytes that are no UTF-8 among it), has something behind
// it, nests deeper than 512, or holds a number that would lose its value: an integer of more than 64 bits, a real
// beyond a double. Of members with one key the last stays.
std::optional<Json> readJson(std::string_view text);

// Whether a value is as expected: equal, where the text "*" in the expectation equals anything.
bool matches(const Json& expected, const Json& value);

// A number of a frame: an integer without a fraction, else the shortest real.
Json jsonNumber(float value);

// Property lists: dates as {"$date": text}, data as {"$data": base64}, reals that are no number or infinite as
// {"$real": text}, everything else as its like.
Json jsonFromPropertyList(const PropertyList& value);
// Nothing where JSON holds what a property list cannot: null, data that are no base64.
std::optional<PropertyList> propertyListFromJson(const Json& value);

}  // namespace tarvo
