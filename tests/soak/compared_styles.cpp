// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <optional>

#include "tests/soak/list_edits.h"

// The lists as a style file holds them.
namespace tarvo::test {

namespace {

constexpr const char* halves[] = {"EJ", "JE"};

std::string lineOf(int style, int direction, const Words& names) {
  std::string line = std::to_string(style) + ' ' + halves[direction];
  for (std::size_t i = 0; i < names.size(); ++i) line += (i == 0 ? ' ' : '|') + names[i];
  return line + '\n';
}

// The stored list; none for a missing key, and for one that holds something else or nothing.
std::optional<Words> storedList(const Dictionary* record, int direction) {
  const Dictionary* half = record != nullptr ? record->dictionary(halves[direction]) : nullptr;
  if (half == nullptr || !half->contains("TD")) return half != nullptr ? std::optional(Words()) : std::nullopt;
  const Array* list = half->array("TD");
  if (list == nullptr || list->empty()) return std::nullopt;  // a style without dictionaries has no list
  Words names;
  for (const PropertyList& element : *list) {
    if (element.string() == nullptr) return std::nullopt;
    names.push_back(*element.string());
  }
  return names;
}

}  // namespace

std::string differenceInStyles(const PlainLists& lists, const Dictionary& root) {
  const Array* records = root.array("Style");
  if (records == nullptr || records->size() != SoakRoot::styles) return "the number of styles";
  for (int style = 0; style < SoakRoot::styles; ++style) {
    for (const int direction : {0, 1}) {
      const auto stored = storedList((*records)[static_cast<std::size_t>(style)].dictionary(), direction);
      if (stored == lists.list(style, direction)) continue;
      return "expected " + lineOf(style, direction, lists.list(style, direction)) + "got " +
             (stored ? lineOf(style, direction, *stored) : "no proper list");
    }
  }
  return {};
}

std::string linesOf(const PlainLists& lists) {
  std::string lines;
  for (int style = 0; style < SoakRoot::styles; ++style) {
    for (const int direction : {0, 1}) lines += lineOf(style, direction, lists.list(style, direction));
  }
  return lines;
}

}  // namespace tarvo::test
