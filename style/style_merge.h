// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/plist/property_list.h"
#include "style/direction.h"

// Joins two sets of styles that were changed apart, by the set that both came from.
// Duty: keep what either side changed, key by key, and tell what could not be kept. Not: reading, writing or showing.
// Pure: equal sets give equal answers, nothing outside is looked at but through MergeKnowledge.
//
// Records pair as style_pairing.h says. One that is new on one side is appended, mine first. One that is gone on one
// side is removed when the other left it as it was, else kept and told. Order: that of the base with the moves of the
// newer set, else of the other one; the record at place 0 stays there. A value that both changed differently stays as
// mine has it, and is told. Names that clash only since the sets are joined get a number.
namespace tarvo {

struct MergedSets {
  const Array& base;
  const Array& mine;    // of this machine
  const Array& theirs;  // of the service, or of another program
  bool mineIsNewer = false;
};

// What only a program that runs on this machine knows. A list of mine counts as unchanged when it lacks no more than
// names that are not on this disk and has no more than names that an installation has inserted.
struct MergeKnowledge {
  // False: it is known to be gone. Letter case aside, as everywhere with names of dictionaries.
  std::function<bool(Direction direction, const std::string& fileName)> isOnDisk;
  std::function<bool(Direction direction, const std::string& fileName)> isInserted;
  std::function<bool(const Dictionary& record)> isDivider;  // dividers may share a name
};

struct MergeNote {
  // otherValue: both changed this key; `other` is what they have, nothing where they removed it.
  // kept: gone on one side, changed on the other. renamed: `key` is the name before the number.
  enum class Kind { otherValue, kept, renamed };
  Kind kind;
  std::string style;                   // as the joined set names it
  std::optional<Direction> direction;  // of otherValue; nothing for a key of the record itself
  std::string key;
  std::optional<PropertyList> other;
  friend bool operator==(const MergeNote&, const MergeNote&) = default;
};

struct MergedStyles {
  Array styles;
  std::vector<std::optional<std::size_t>> placesOfMine;  // where each record of mine is now; nothing: removed
  std::vector<MergeNote> notes;
};

MergedStyles mergeStyles(const MergedSets& sets, const MergeKnowledge& knowledge);

}  // namespace tarvo
