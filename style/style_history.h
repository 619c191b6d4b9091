// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "style/earlier_styles.h"
#include "style/style_changes.h"

// The earlier sets of styles with what was done to each of them.
namespace tarvo {

class StyleStore;

struct HistoryEntry {
  EarlierSet set;
  std::vector<StyleChange> changes;  // from it to the set that followed it, or to the present one
  std::optional<Failure> damage;     // why it cannot be brought back
};
// Newest first. present: the styles as they are. Reads every earlier set.
std::vector<HistoryEntry> styleHistory(const EarlierStyles& earlier, const Array& present);

// The set whose id is the word or begins with it; nothing when there is none, or more than one.
std::optional<EarlierSet> setWithId(const EarlierStyles& earlier, const std::string& word);

// Brings an earlier set back, with the choices of the tools; all of it where the store holds nothing. One write; it is
// an edit like any other.
void restoreStyles(StyleStore& store, const Dictionary& earlier);
// Brings the style of the same name, else the one at the same place, back into the record at the index, which keeps its
// "ID" and, where another style has the earlier name by now, its name. False: the earlier set has no such record, and
// nothing was written.
bool restoreStyle(StyleStore& store, int index, const Dictionary& earlier, const std::string& standardName);

}  // namespace tarvo
