// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/plist/property_list.h"
#include "style/direction.h"

// What differs between two sets of styles, or two records. Pure; words for it come from dict/change_words.h.
namespace tarvo {

struct StyleChange {
  enum class Kind {
    added,              // a style
    removed,            // a style
    moved,              // the order of the styles
    renamed,            // before and after: the names
    dictionaryAdded,    // key: the dictionary's file name
    dictionaryRemoved,  // key: the dictionary's file name
    dictionariesMoved,  // the order of a list
    value               // of a key, before and after
  };
  Kind kind;
  std::string style;  // as it is called afterwards; a removed one as before
  std::optional<Direction> direction;
  std::string key;
  std::optional<PropertyList> before, after;
  friend bool operator==(const StyleChange&, const StyleChange&) = default;
};

// Styles in the order of the set after, removed ones last. "ID" is left out: nobody chose it.
std::vector<StyleChange> styleChanges(const Array& before, const Array& after);
std::vector<StyleChange> recordChanges(const PropertyList& before, const PropertyList& after);

}  // namespace tarvo
