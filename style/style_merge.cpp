// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_merge.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

#include "platform/text/text_rules.h"
#include "style/record_merge.h"
#include "style/style_keys.h"
#include "style/style_pairing.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

// A record of the joined set and where it came from.
struct Joined {
  PropertyList record;
  std::optional<std::size_t> base, mine, theirs;
  std::vector<MergeNote> notes = {};
};

std::multiset<std::string> foldedNames(const Array& set) {
  std::multiset<std::string> names;
  for (const PropertyList& record : set) names.insert(caseFolded(recordName(record)));
  return names;
}

int numberOf(const Joined& one) {
  const Dictionary* record = one.record.dictionary();
  return record != nullptr ? record->integerValue(keyNameID) : 0;
}

// Places of the base in the order in which the set has its records.
std::vector<std::size_t> orderIn(const Pairing& pairing) {
  std::vector<std::pair<std::size_t, std::size_t>> places;  // in the set, in the base
  for (std::size_t i = 0; i < pairing.size(); ++i) {
    if (const auto& place = pairing[i]) places.emplace_back(*place, i);
  }
  std::ranges::sort(places);
  std::vector<std::size_t> order(places.size());
  std::ranges::transform(places, order.begin(), [](const auto& one) { return one.second; });
  return order;
}

// What the base holds, in the order of the leader; what that lacks stays behind what stood before it in the base.
void sortBy(const std::vector<std::size_t>& leader, std::size_t count, std::vector<Joined>& joined) {
  constexpr std::size_t absent = static_cast<std::size_t>(-1);
  std::vector<std::size_t> rank(count, absent);
  for (std::size_t i = 0; i < leader.size(); ++i) rank[leader[i]] = i + 1;
  std::vector<std::tuple<std::size_t, bool, std::size_t>> keys(count);
  std::size_t last = 0;
  for (std::size_t i = 0; i < count; ++i) {
    if (rank[i] != absent) last = rank[i];
    keys[i] = {i == 0 ? 0 : last, i != 0 && rank[i] == absent, i};
  }
  std::ranges::sort(joined, {}, [&keys](const Joined& one) { return keys[*one.base]; });
}

class SetMerge {
 public:
  SetMerge(const MergedSets& sets, const MergeKnowledge& knowledge)
      : sets_(sets),
        knowledge_(knowledge),
        records_(knowledge),
        mine_(pairRecords(sets.base, sets.mine)),
        theirs_(pairRecords(sets.base, sets.theirs)),
        namesOfMine_(foldedNames(sets.mine)),
        namesOfTheirs_(foldedNames(sets.theirs)) {}

  MergedStyles all() {
    for (std::size_t i = 0; i < sets_.base.size(); ++i) joinPaired(i);
    arrange();
    appendNew();
    settleNames();
    settleNumbers();
    return finish();
  }

 private:
  void joinPaired(std::size_t i);
  void arrange();
  void appendNew();
  void settleNames();
  void settleNumbers();
  MergedStyles finish();
  bool isDivider(const Joined& one) const;
  bool wasDoubled(const Joined& one) const;
  std::string nameBefore(const Joined& one) const;

  const MergedSets& sets_;
  const MergeKnowledge& knowledge_;
  RecordMerge records_;
  Pairing mine_, theirs_;
  std::multiset<std::string> namesOfMine_, namesOfTheirs_;
  std::vector<Joined> joined_;
};

void SetMerge::joinPaired(std::size_t i) {
  const auto &mine = mine_[i], &theirs = theirs_[i];
  const PropertyList& base = sets_.base[i];
  const MergeNote kept{MergeNote::Kind::kept, "", {}, "", {}};
  if (mine && theirs) {
    Joined both{{}, i, mine, theirs};
    both.record = records_.join(base, sets_.mine[*mine], sets_.theirs[*theirs], both.notes);
    joined_.push_back(std::move(both));
  } else if (mine && !records_.countsAsUnchanged(base, sets_.mine[*mine])) {
    joined_.push_back({sets_.mine[*mine], i, mine, {}, {kept}});
  } else if (theirs && !holdsTheSame(base, sets_.theirs[*theirs])) {
    joined_.push_back({sets_.theirs[*theirs], i, {}, theirs, {kept}});
  }
}

void SetMerge::arrange() {
  const auto newer = orderIn(sets_.mineIsNewer ? mine_ : theirs_), older = orderIn(sets_.mineIsNewer ? theirs_ : mine_);
  sortBy(std::ranges::is_sorted(newer) ? older : newer, sets_.base.size(), joined_);
}

// The same record may have come to both sides, from a file say: it is taken once.
void SetMerge::appendNew() {
  std::multimap<std::string, std::size_t> ofMine;
  for (const std::size_t place : unpairedPlaces(mine_, sets_.mine.size())) {
    ofMine.emplace(recordName(sets_.mine[place]), joined_.size());
    joined_.push_back({sets_.mine[place], {}, place, {}});
  }
  for (const std::size_t place : unpairedPlaces(theirs_, sets_.theirs.size())) {
    const PropertyList& record = sets_.theirs[place];
    const auto [begin, end] = ofMine.equal_range(recordName(record));
    const auto twin =
        std::find_if(begin, end, [&](const auto& one) { return holdsTheSame(joined_[one.second].record, record); });
    if (twin == end) {
      joined_.push_back({record, {}, {}, place});
    } else {
      joined_[twin->second].theirs = place;
      ofMine.erase(twin);
    }
  }
}

bool SetMerge::isDivider(const Joined& one) const {
  const Dictionary* record = one.record.dictionary();
  return record == nullptr || knowledge_.isDivider(*record);
}

std::string SetMerge::nameBefore(const Joined& one) const {
  return one.base ? recordName(sets_.base[*one.base]) : std::string();
}

// Names that stay come first, then those that mine gave, then those that they gave.
void SetMerge::settleNames() {
  std::set<std::string> taken;
  std::vector<std::pair<int, Joined*>> changed;
  for (Joined& one : joined_) {
    const std::string name = recordName(one.record);
    if (isDivider(one) || (one.base && name == nameBefore(one))) {
      taken.insert(caseFolded(name));
    } else {
      const bool isMine = one.mine && recordName(sets_.mine[*one.mine]) == name;
      changed.emplace_back((one.base ? 0 : 2) + (isMine ? 0 : 1), &one);
    }
  }
  std::ranges::stable_sort(changed, {}, [](const auto& one) { return one.first; });
  for (const auto& [rank, one] : changed) {
    const std::string asked = recordName(one->record);
    std::string name = asked;
    for (int number = 2; taken.contains(caseFolded(name)) && !wasDoubled(*one); ++number) {
      name = asked + " " + std::to_string(number);
    }
    taken.insert(caseFolded(name));
    if (name == asked) continue;
    one->record.dictionary()->set(keyNameName, name);
    one->notes.push_back({MergeNote::Kind::renamed, "", {}, asked, {}});
  }
}

// Each machine numbers what it appends by its place, so numbers of both sides clash as a rule.
void SetMerge::settleNumbers() {
  std::set<int> taken;
  for (const Joined& one : joined_) {
    if (one.base) taken.insert(numberOf(one));
  }
  for (std::size_t i = 0; i < joined_.size(); ++i) {
    Dictionary* record = joined_[i].record.dictionary();
    if (joined_[i].base || record == nullptr) continue;
    int number = numberOf(joined_[i]);
    if (taken.contains(number)) number = static_cast<int>(i);
    while (taken.contains(number)) ++number;
    if (number != numberOf(joined_[i])) record->set(keyNameID, number);
    taken.insert(number);
  }
}

MergedStyles SetMerge::finish() {
  MergedStyles merged;
  merged.placesOfMine.resize(sets_.mine.size());
  for (std::size_t i = 0; i < joined_.size(); ++i) {
    Joined& one = joined_[i];
    if (one.mine) merged.placesOfMine[*one.mine] = i;
    for (MergeNote& note : one.notes) {
      note.style = recordName(one.record);
      merged.notes.push_back(std::move(note));
    }
    merged.styles.push_back(std::move(one.record));
  }
  return merged;
}

// A set that had the name twice by itself keeps it twice.
bool SetMerge::wasDoubled(const Joined& one) const {
  const std::string name = recordName(one.record);
  const bool isMine = one.mine && recordName(sets_.mine[*one.mine]) == name;
  return (isMine ? namesOfMine_ : namesOfTheirs_).count(caseFolded(name)) > 1;
}

bool countsAsUnchanged(const MergedSets& sets, const MergeKnowledge& knowledge) {
  const RecordMerge records(knowledge);
  return std::ranges::equal(sets.base, sets.mine, [&records](const PropertyList& base, const PropertyList& mine) {
    return records.countsAsUnchanged(base, mine);
  });
}

// Mine, but for the lists that only this machine's disk has changed.
MergedStyles onlyMine(const MergedSets& sets, const MergeKnowledge& knowledge) {
  const RecordMerge records(knowledge);
  MergedStyles merged{sets.mine, pairRecords(sets.mine, sets.mine), {}};
  const Pairing places = pairRecords(sets.base, sets.mine);
  for (std::size_t i = 0; i < places.size(); ++i) {
    const auto& place = places[i];
    if (place) merged.styles[*place] = records.join(sets.base[i], sets.mine[*place], sets.base[i], merged.notes);
  }
  return merged;
}

}  // namespace

MergedStyles mergeStyles(const MergedSets& sets, const MergeKnowledge& knowledge) {
  // Where one side did nothing the other is the answer as it stands, whatever it did.
  if (countsAsUnchanged(sets, knowledge)) return {sets.theirs, pairRecords(sets.mine, sets.theirs), {}};
  if (sets.theirs == sets.base) return onlyMine(sets, knowledge);
  if (sets.theirs == sets.mine) return {sets.mine, pairRecords(sets.mine, sets.mine), {}};
  return SetMerge(sets, knowledge).all();
}

}  // namespace tarvo
