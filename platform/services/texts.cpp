// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/texts.h"

#include "platform/services/bundle.h"
#include "platform/services/plist_file.h"
#include "platform/text/text_rules.h"

namespace tarvo {

void Texts::overlay(const Dictionary& table) {
  for (const auto& [key, value] : table.entries()) {
    if (const std::string* text = value.string()) table_[key] = *text;
  }
}

void Texts::clear() { table_.clear(); }

const std::string* Texts::find(std::string_view key) const {
  const auto found = table_.find(key);
  return found == table_.end() ? nullptr : &found->second;
}

std::string Texts::localized(std::string_view key) const {
  const std::string* text = find(key);
  return text != nullptr ? *text : std::string(key);
}

std::string Texts::localizedOrEmpty(std::string_view key) const {
  const std::string* text = find(key);
  return text != nullptr ? *text : std::string();
}

Result<> overlayTableFile(Texts& texts, const FileService& files, const DiskPath& path) {
  const Result<Dictionary> table = readDictionary(files, path);
  if (!table) return table.error();
  texts.overlay(*table);
  return {};
}

void overlayShippedTable(Texts& texts, const Bundle& bundle, const FileService& files) {
  for (const std::string& language : bundle.languages()) {
    if (overlayTableFile(texts, files, bundle.folder() / (language + ".lproj/Localizable.strings"))) return;
  }
}

namespace {

struct Place {
  std::size_t at = std::string::npos, length = 0;
};

Place firstPlace(const std::string& text) {
  Place first;
  for (const std::string_view mark : {"%@", "%d", "%i", "%ld"}) {
    const std::size_t found = text.find(mark);
    if (found < first.at) first = {found, mark.size()};
  }
  return first;
}

}  // namespace

std::string filledIn(std::string text, std::string_view value) {
  const Place place = firstPlace(text);
  return place.at == std::string::npos ? text : text.replace(place.at, place.length, value);
}

std::string filledIn(const std::string& text, std::string_view first, std::string_view second) {
  const Place place = firstPlace(text);
  if (place.at == std::string::npos) return text;
  return text.substr(0, place.at) + std::string(first) + filledIn(text.substr(place.at + place.length), second);
}

std::string filledInAll(std::string_view text, const std::vector<std::string>& values) {
  std::string filled;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char digit = text[i] == '%' && i + 1 < text.size() ? text[i + 1] : '\0';
    const auto value = static_cast<std::size_t>(digit - '1');
    if (digit < '1' || digit > '9' || value >= values.size()) {
      filled += text[i];
      continue;
    }
    filled += values[value];
    ++i;
  }
  return filled;
}

}  // namespace tarvo
