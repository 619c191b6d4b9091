// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/json.h"

#include <charconv>
#include <cmath>
#include <cstdio>

#include "platform/text/utf8.h"

namespace tarvo {

namespace {

std::string shortest(double value) {
  char digits[40];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  return {digits, end};
}

double number(const Real& real) {
  double value = 0;
  const char* begin = real.text.data();
  const char* end = begin + real.text.size();
  if (begin != end && *begin == '+') ++begin;
  std::from_chars(begin, end, value);
  return value;
}

// Texts of property lists may hold what JSON has no form for: a plus sign, no digit before or behind the point, nan.
std::string realText(const Real& real) {
  const double value = number(real);
  if (!std::isfinite(value)) return "{\"$real\":\"" + shortest(value) + "\"}";
  std::string text = shortest(value);
  if (text.find_first_of(".e") == std::string::npos) text += ".0";
  return text;
}

void writeText(std::string& out, std::string_view text) {
  out += '"';
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = nextCodePoint(text, at);
    if (c == U'"' || c == U'\\') {
      out += '\\';
      out += static_cast<char>(c);
    } else if (c == U'\n') {
      out += "\\n";
    } else if (c == U'\t') {
      out += "\\t";
    } else if (c == U'\r') {
      out += "\\r";
    } else if (c < 0x20) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
      out += escape;
    } else {
      appendCodePoint(out, c < invalidByte ? c : U'\uFFFD');
    }
  }
  out += '"';
}

struct Writer {
  std::string& out;
  void write(const Json& value) { std::visit(*this, value.value()); }
  void operator()(std::nullptr_t) { out += "null"; }
  void operator()(bool value) { out += value ? "true" : "false"; }
  void operator()(const Integer& value) { out += (value.negative ? "-" : "") + std::to_string(value.magnitude); }
  void operator()(const Real& value) { out += realText(value); }
  void operator()(const std::string& value) { writeText(out, value); }
  void operator()(const Json::List& list) {
    out += '[';
    for (const Json& element : list) {
      if (&element != &list.front()) out += ',';
      write(element);
    }
    out += ']';
  }
  void operator()(const Json::Object& object) {
    out += '{';
    bool first = true;
    for (const auto& [key, value] : object) {
      if (!std::exchange(first, false)) out += ',';
      writeText(out, key);
      out += ':';
      write(value);
    }
    out += '}';
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
  const auto* text = std::get_if<std::string>(&expected.value());
  if (text != nullptr && *text == "*") return true;
  const auto* list = std::get_if<Json::List>(&expected.value());
  const auto* otherList = std::get_if<Json::List>(&value.value());
  if (list != nullptr && otherList != nullptr) {
    return std::equal(list->begin(), list->end(), otherList->begin(), otherList->end(), matches);
  }
  const auto* object = std::get_if<Json::Object>(&expected.value());
  const auto* otherObject = std::get_if<Json::Object>(&value.value());
  if (object == nullptr || otherObject == nullptr) return expected == value;
  return std::equal(object->begin(), object->end(), otherObject->begin(), otherObject->end(),
                    [](const auto& left, const auto& right) {
                      return left.first == right.first && matches(left.second, right.second);
                    });
}

Json jsonNumber(float value) {
  char digits[40];
  const std::string text(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
  if (std::trunc(value) == value && std::fabs(value) < 1e9F) return static_cast<int>(value);
  return Real{text};
}

}  // namespace tarvo
