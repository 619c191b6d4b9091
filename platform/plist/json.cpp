// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/json.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "platform/plist/plist_numbers.h"
#include "platform/text/base64.h"
#include "platform/text/utf8.h"

namespace tarvo {

namespace {

// Property lists may hold what JSON has no form for: a plus sign, no digit before or behind the point, nan, infinity.
std::string realText(const Real& real) {
  const double value = realFromText(real.text).value_or(0);
  std::string text = textFromReal(value);
  if (!std::isfinite(value)) return "{\"$real\":\"" + text + "\"}";
  return text.find_first_of(".e") == std::string::npos ? text + ".0" : text;
}

void appendControl(std::string& out, char32_t c) {
  constexpr std::string_view digits = "0123456789abcdef";
  if (c == U'\n') {
    out += "\\n";
  } else if (c == U'\t') {
    out += "\\t";
  } else if (c == U'\r') {
    out += "\\r";
  } else {
    out.append("\\u00").append({digits[c >> 4], digits[c & 15]});
  }
}

void appendText(std::string& out, std::string_view text) {
  out += '"';
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = nextCodePoint(text, at);
    if (c < 0x20) {
      appendControl(out, c);
      continue;
    }
    if (c == U'"' || c == U'\\') out += '\\';
    appendCodePoint(out, c < invalidByte ? c : U'\uFFFD');
  }
  out += '"';
}

struct Writer {
  std::string& out;
  void write(const Json& value) { std::visit(*this, value.value()); }
  void operator()(std::nullptr_t) { out += "null"; }
  void operator()(bool value) { out += value ? "true" : "false"; }
  void operator()(const Integer& value) {
    if (value.negative) out += '-';
    out += std::to_string(value.magnitude);
  }
  void operator()(const Real& value) { out += realText(value); }
  void operator()(const std::string& value) { appendText(out, value); }
  void operator()(const Json::List& list) {
    const char* separator = "[";
    for (const Json& element : list) {
      out += std::exchange(separator, ",");
      write(element);
    }
    out += list.empty() ? "[]" : "]";
  }
  void operator()(const Json::Object& object) {
    const char* separator = "{";
    for (const auto& [key, value] : object) {
      out += std::exchange(separator, ",");
      appendText(out, key);
      out += ':';
      write(value);
    }
    out += object.empty() ? "{}" : "}";
  }
};

struct ToJson {
  Json operator()(const auto& value) const { return value; }
  Json operator()(const Date& value) const { return Json::Object{{"$date", value.text}}; }
  Json operator()(const Data& value) const {
    std::string text;
    appendBase64(text, value);
    return Json::Object{{"$data", std::move(text)}};
  }
  Json operator()(const Array& array) const {
    Json::List list;
    for (const PropertyList& element : array) list.push_back(jsonFromPropertyList(element));
    return list;
  }
  Json operator()(const Dictionary& dictionary) const {
    Json::Object object;
    for (const auto& [key, value] : dictionary.entries()) object.emplace(key, jsonFromPropertyList(value));
    return object;
  }
};

using Result = std::optional<PropertyList>;

// The one text of an object {"$date": …} or {"$data": …}.
const std::string* onlyText(const Json::Object& object, std::string_view key) {
  const auto found = object.find(key);
  return object.size() == 1 && found != object.end() ? std::get_if<std::string>(&found->second.value()) : nullptr;
}

struct ToPropertyList {
  Result operator()(const auto& value) const { return value; }
  Result operator()(std::nullptr_t) const { return std::nullopt; }
  Result operator()(const Json::List& list) const {
    Array array;
    for (const Json& element : list) {
      Result value = propertyListFromJson(element);
      if (!value) return std::nullopt;
      array.push_back(std::move(*value));
    }
    return array;
  }
  Result operator()(const Json::Object& object) const {
    if (const std::string* date = onlyText(object, "$date")) return Date{*date};
    if (const std::string* data = onlyText(object, "$data")) return bytesFromBase64(*data);
    Dictionary dictionary;
    for (const auto& [key, element] : object) {
      Result value = propertyListFromJson(element);
      if (!value) return std::nullopt;
      dictionary.set(key, std::move(*value));
    }
    return dictionary;
  }
};

}  // namespace

bool operator==(const Json& a, const Json& b) {
  const Real* left = std::get_if<Real>(&a.value_);
  const Real* right = std::get_if<Real>(&b.value_);
  if (left != nullptr && right != nullptr) return realText(*left) == realText(*right);
  return a.value_ == b.value_;
}

std::string writeJson(const Json& value) {
  std::string out;
  Writer{out}.write(value);
  return out;
}

bool matches(const Json& expected, const Json& value) {
  if (expected == Json("*")) return true;
  const auto* list = std::get_if<Json::List>(&expected.value());
  const auto* otherList = std::get_if<Json::List>(&value.value());
  if (list != nullptr && otherList != nullptr) return std::ranges::equal(*list, *otherList, matches);
  const auto* object = std::get_if<Json::Object>(&expected.value());
  const auto* otherObject = std::get_if<Json::Object>(&value.value());
  if (object == nullptr || otherObject == nullptr) return expected == value;
  return std::ranges::equal(*object, *otherObject, [](const auto& left, const auto& right) {
    return left.first == right.first && matches(left.second, right.second);
  });
}

Json jsonNumber(float value) {
  if (std::trunc(value) == value && std::fabs(value) < 1e9F) return static_cast<int>(value);
  std::array<char, 40> digits;
  return Real{{digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr}};
}

Json jsonFromPropertyList(const PropertyList& value) { return std::visit(ToJson{}, value.value()); }

std::optional<PropertyList> propertyListFromJson(const Json& value) {
  return std::visit(ToPropertyList{}, value.value());
}

}  // namespace tarvo
