// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/plist/property_list.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"

// The localized texts: key to text. Tables are laid one over another; a later one wins.
namespace tarvo {

class Texts {
 public:
  // Lays a table (dictionary of strings; other values are skipped) over what is there.
  void overlay(const Dictionary& table);
  // Drops every table laid so far: each text is its key.
  void clear();
  // The text, or the key itself when there is none.
  std::string localized(std::string_view key) const;
  // The text, or an empty one: what the name checks of new dictionaries show for a key without a text.
  std::string localizedOrEmpty(std::string_view key) const;
  const std::string* find(std::string_view key) const;

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
  };
  std::unordered_map<std::string, std::string, Hash, std::equal_to<>> table_;
};

// The text with the first place for a value in it (%@, %d, %i or %ld) filled. Texts are never used as formats
// themselves: a translated one may hold anything.
std::string filledIn(std::string text, std::string_view value);
// The same for two places in their order; what the first value holds is no place.
std::string filledIn(const std::string& text, std::string_view first, std::string_view second);
// The values in place of "%1", "%2" and so on, in whatever order the language has them; a value is not looked through.
std::string filledInAll(std::string_view text, const std::vector<std::string>& values);

class Bundle;
class FileService;
// Lays the shipped table over the texts: "Localizable.strings" (a property list) of the bundle's first language that
// has one.
void overlayShippedTable(Texts& texts, const Bundle& bundle, const FileService& files);
// Lays the property list at the path over the texts.
Result<> overlayTableFile(Texts& texts, const FileService& files, const DiskPath& path);

}  // namespace tarvo
