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

std::string filledIn(std::string text, std::string_view value) {
  std::size_t first = std::string::npos, length = 0;
  for (const std::string_view place : {"%@", "%d", "%i", "%ld"}) {
    const std::size_t found = text.find(place);
    if (found >= first) continue;
    first = found;
    length = place.size();
  }
  return first == std::string::npos ? text : text.replace(first, length, value);
}

}  // namespace tarvo
