// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "style/style_merge.h"

namespace tarvo {

// Joins the values of one record, key by key; the keys of its two directions one by one, a list of dictionaries as one
// value. "ID" is joined in silence: nobody chose it.
class RecordMerge {
 public:
  explicit RecordMerge(const MergeKnowledge& knowledge) : knowledge_(knowledge) {}
  // The record, and into notes what both changed; MergeNote::style is left to the caller.
  PropertyList join(const PropertyList& base, const PropertyList& mine, const PropertyList& theirs,
                    std::vector<MergeNote>& notes) const;
  // Whether mine is the base's but for what this machine did to it by itself.
  bool countsAsUnchanged(const PropertyList& base, const PropertyList& mine) const;

 private:
  using Half = std::optional<Direction>;  // nothing: the record's own keys
  Dictionary joinKeys(Half half, const Dictionary& base, const Dictionary& mine, const Dictionary& theirs,
                      std::vector<MergeNote>& notes) const;
  bool areUnchanged(Half half, const Dictionary& base, const Dictionary& mine) const;
  bool isUnchangedList(Half half, std::string_view key, const PropertyList* base, const PropertyList* mine) const;
  const MergeKnowledge& knowledge_;
};

// Whether two records hold the same, but for "ID".
bool holdsTheSame(const PropertyList& one, const PropertyList& other);

}  // namespace tarvo
