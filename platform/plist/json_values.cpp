// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <array>

#include "platform/plist/json.h"

// Property lists as JSON and back.
namespace tarvo {

namespace {

// Base64: RFC 4648.
constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

std::string base64(const Data& data) {
  std::string out;
  for (std::size_t at = 0; at < data.size(); at += 3) {
    const std::size_t present = std::min<std::size_t>(3, data.size() - at);
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < 3; ++i)
      bits = (bits << 8) | (i < present ? std::to_integer<std::uint32_t>(data[at + i]) : 0);
    for (std::size_t i = 0; i < 4; ++i) out += i <= present ? alphabet[(bits >> (18 - 6 * i)) & 63] : '=';
  }
  return out;
}

std::optional<Data> fromBase64(std::string_view text) {
  Data data;
  std::uint32_t bits = 0;
  int count = 0;
  if (text.size() % 4 != 0) return std::nullopt;
  const std::size_t padding = text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
  for (const char c : text.substr(0, text.size() - padding)) {
    const std::size_t value = alphabet.find(c);
    if (value == std::string_view::npos) return std::nullopt;
    bits = (bits << 6) | static_cast<std::uint32_t>(value);
    count += 6;
    if (count < 8) continue;
    count -= 8;
    data.push_back(static_cast<std::byte>((bits >> count) & 0xFF));
  }
  return data;
}

struct ToJson {
  Json operator()(bool value) const { return value; }
  Json operator()(const Integer& value) const { return value; }
  Json operator()(const Real& value) const { return value; }
  Json operator()(const Date& value) const { return Json::Object{{"$date", value.text}}; }
  Json operator()(const std::string& value) const { return value; }
  Json operator()(const Data& value) const { return Json::Object{{"$data", base64(value)}}; }
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
  Result operator()(std::nullptr_t) const { return std::nullopt; }
  Result operator()(bool value) const { return value; }
  Result operator()(const Integer& value) const { return value; }
  Result operator()(const Real& value) const { return value; }
  Result operator()(const std::string& value) const { return value; }
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
    if (const std::string* data = onlyText(object, "$data")) {
      std::optional<Data> bytes = fromBase64(*data);
      return bytes ? Result(std::move(*bytes)) : std::nullopt;
    }
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

Json jsonFromPropertyList(const PropertyList& value) { return std::visit(ToJson{}, value.value()); }

std::optional<PropertyList> propertyListFromJson(const Json& value) {
  return std::visit(ToPropertyList{}, value.value());
}

}  // namespace tarvo
