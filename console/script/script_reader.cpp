// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/script_reader.h"

#include <charconv>

#include "console/script/script_error.h"
#include "platform/text/utf8.h"

namespace tarvo {

namespace {
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }
}  // namespace

ScriptLine::ScriptLine(std::string text) : text_(std::move(text)) {}

void ScriptLine::skipBlanks() {
  while (at_ < text_.size() && isBlank(text_[at_])) ++at_;
}

bool ScriptLine::atEnd() {
  skipBlanks();
  return at_ == text_.size() || text_[at_] == '#';
}

std::string ScriptLine::word() {
  std::string word;
  if (atEnd()) return word;
  while (at_ < text_.size() && !isBlank(text_[at_])) {
    if (text_[at_] == '"') {
      quotation(word);
    } else {
      word += text_[at_++];
    }
  }
  return word;
}

void ScriptLine::quotation(std::string& word) {
  ++at_;
  while (at_ < text_.size() && text_[at_] != '"') {
    if (text_[at_] == '\\') {
      escape(word);
    } else {
      word += text_[at_++];
    }
  }
  if (at_ == text_.size()) throw ScriptError("a quotation is not closed");
  ++at_;
}

void ScriptLine::escape(std::string& word) {
  const char kind = ++at_ < text_.size() ? text_[at_++] : '\0';
  switch (kind) {
    case '"':
    case '\\': word += kind; return;
    case 'n': word += '\n'; return;
    case 't': word += '\t'; return;
    case 'u': break;
    default: throw ScriptError("there is no such escape in a quotation");
  }
  char32_t unit = hexadecimal();
  if (unit >= 0xD800 && unit < 0xDC00 && text_.compare(at_, 2, "\\u") == 0) {
    at_ += 2;
    const char32_t low = hexadecimal();
    if (low >= 0xDC00 && low < 0xE000) unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
  }
  if (unit >= 0xD800 && unit < 0xE000) throw ScriptError("\\u names half a character");
  appendCodePoint(word, unit);
}

char32_t ScriptLine::hexadecimal() {
  unsigned value = 0;
  const char* begin = text_.data() + at_;
  if (text_.size() - at_ < 4 || std::from_chars(begin, begin + 4, value, 16).ptr != begin + 4) {
    throw ScriptError("\\u needs four hexadecimal digits");
  }
  at_ += 4;
  return value;
}

std::string ScriptLine::rest() {
  skipBlanks();
  std::size_t end = text_.size();
  while (end > at_ && isBlank(text_[end - 1])) --end;
  std::string rest = text_.substr(at_, end - at_);
  at_ = text_.size();
  return rest;
}

std::vector<std::string> ScriptLine::words() {
  std::vector<std::string> all;
  while (!atEnd()) all.push_back(word());
  return all;
}

}  // namespace tarvo
