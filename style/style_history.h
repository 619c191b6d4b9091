// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
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
  std::optional<Failure> unread;     // why nobody knows what followed it: the present styles cannot be read
};

// Duty: the earlier sets as they were listed, newest first, each with what was done to it. A set is read when its
// entry is asked for. Not: bringing one back.
class StyleHistory {
 public:
  // present: the styles as they are. earlier outlives it.
  StyleHistory(const EarlierStyles& earlier, std::vector<EarlierSet> sets, Result<Array> present);
  const std::vector<EarlierSet>& sets() const { return sets_; }
  const HistoryEntry& entry(std::size_t place);

 private:
  const Result<Array>& stylesOf(std::size_t place);
  const Result<Array>& followerOf(std::size_t place);
  const EarlierStyles& earlier_;
  Result<Array> present_;
  std::vector<EarlierSet> sets_;
  std::map<std::size_t, HistoryEntry> entries_;
  std::map<std::size_t, Result<Array>> read_;  // the two that were read last: neighbours are asked for in turn
};

// The set whose id is the word or begins with it; nothing when there is none, or more than one.
std::optional<EarlierSet> setWithId(std::vector<EarlierSet> sets, const std::string& word);

// The newest set that can be brought back.
std::optional<EarlierSet> newestWhole(const EarlierStyles& earlier);

// Brings an earlier set back, with the choices of the tools; all of it where the store holds nothing. Choices that the
// set says nothing of stay, but for those of a style that is gone, which become the first one. One write; it is an edit
// like any other. False: the set holds something else than styles, and nothing was written.
bool restoreStyles(StyleStore& store, const Dictionary& earlier);
// Brings the style of the same name, else the one at the same place, back into the record at the index, which keeps its
// "ID" and, where another style has the earlier name by now, its name. False: the earlier set has no such record, and
// nothing was written.
bool restoreStyle(StyleStore& store, int index, const Dictionary& earlier, const std::string& standardName);
// Brings the style at the place of an earlier set into styles that did not follow it: the first into the first, one
// whose name is there into that one, every other behind them all. One write.
void addEarlierStyle(StyleStore& store, int place, const Dictionary& earlier, const std::string& standardName);

}  // namespace tarvo
