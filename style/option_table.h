// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/controls/controls.h"
#include "platform/plist/property_list.h"
#include "style/direction.h"

// The vocabulary of a style's translation options: every key, the values it may take, and the pop-up that edits it.
// The engine reads keys and values in these spellings; what they mean is the engine's.
namespace tarvo {

class Texts;

// An option whose value is the index of the chosen item.
struct IndexOption {
  std::string_view key;
  Direction direction;      // the record's half that holds it
  std::string_view outlet;  // "" for one that no control edits
  int popupTag;
  int itemCount;
  bool mayBeAbsent = false;  // in a style that comes from a file
};
std::span<const IndexOption> indexOptions();         // in the order of their tags
std::span<const IndexOption> storedOptions();        // the same and, at the end, those that no control edits
const IndexOption* indexOptionForTag(int popupTag);  // null for a tag that no pop-up has
// What a "JE" record that lacks one of these keys gets when the style file is loaded.
const std::vector<std::pair<std::string_view, PropertyList>>& jeOptionDefaults();
// Those of these keys that a "JE" record of the style file's root lacks.
std::vector<std::string> missingOptions(const Dictionary& root);

// A Japanese-to-English option whose value is a text, chosen by the tag of an item. Tags count from 0 in the order of
// the values; every other tag means the value at `otherwise`. Which value that is differs from key to key, and the
// engine's files of other tools rely on it.
struct DetailOption {
  std::string_view key, outlet;
  std::array<std::string_view, 6> values;
  int valueCount;
  int otherwise;
  std::string_view heading;  // text key of the group in which the window shows it
  std::span<const std::string_view> choices() const { return {values.data(), static_cast<std::size_t>(valueCount)}; }
  std::string_view valueForTag(int tag) const;
  int tagForValue(std::string_view value) const;  // the first tag that yields it; -1: none
};
std::span<const DetailOption> detailOptions();       // 36, in the order in which a sender is looked for
std::span<const std::string_view> detailHeadings();  // text keys of the groups, in the order in which they are shown

// Items with their tags: titles are the texts of "<KEY>.<index>" and "<KEY>.<value>"; without one, the key or the
// value.
std::vector<PopUpButton::Item> itemsFor(const IndexOption& option, const Texts& texts);
std::vector<PopUpButton::Item> itemsFor(const DetailOption& option, const Texts& texts);

}  // namespace tarvo
