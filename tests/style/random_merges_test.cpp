// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <set>

#include "platform/text/text_rules.h"
#include "style/record_merge.h"
#include "style/style_keys.h"
#include "style/style_merge.h"
#include "style/style_records.h"

// Sets that two machines change at random from one base: what must hold of every merge.
namespace tarvo {
namespace {

// script/soak makes a hundred times as many, and says so in the environment.
unsigned tripleCount() {
  const char* count = std::getenv("TARVO_MERGES");
  return count != nullptr ? static_cast<unsigned>(std::atoi(count)) : 1000;
}
const unsigned triples = tripleCount();

const MergeKnowledge everythingIsHere{
    .isOnDisk = [](Direction, const std::string&) { return true; },
    .isInserted = [](Direction, const std::string&) { return false; },
    .isDivider = [](const Dictionary&) { return false; },
};

class Sets {
 public:
  explicit Sets(unsigned seed) : random_(seed) {}

  Array make() {
    Array set;
    for (int i = below(6); i >= 0; --i) set.push_back(record(freshName(set)));
    return set;
  }

  // side: marks the values that this side gives, so that each can be found again.
  Array change(Array set, int side) {
    for (int edits = below(4); edits > 0; --edits) changeOnce(set, side);
    return set;
  }

 private:
  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

  PropertyList record(const std::string& name) {
    Dictionary values, half;
    half.set("Opt1", ++value_);
    half.set(keyNameTD, Array{"Physics"});
    values.set(keyNameName, name);
    values.set(keyNameID, below(8));
    values.set(keyNameEJ, std::move(half));
    return values;
  }

  std::string freshName(const Array& set) {
    std::string name;
    const auto isTaken = [&name](const PropertyList& one) { return equalIgnoringCase(recordName(one), name); };
    do {
      name = std::string(below(2) == 0 ? "n" : "N") + static_cast<char>('a' + below(12));
    } while (std::ranges::any_of(set, isTaken));
    return name;
  }

  void changeOnce(Array& set, int side) {
    const std::size_t place = static_cast<std::size_t>(below(static_cast<int>(set.size())));
    switch (below(6)) {
      case 0: set.push_back(record(freshName(set))); return;
      case 1:
        if (set.size() > 1) set.erase(set.begin() + static_cast<std::ptrdiff_t>(place));
        return;
      case 2: set[place].dictionary()->set(keyNameName, freshName(set)); return;
      case 3: std::rotate(set.begin(), set.begin() + static_cast<std::ptrdiff_t>(place), set.end()); return;
      case 4: set[place].dictionary()->dictionary(keyNameEJ)->set(keyNameTD, Array{"Physics", ++value_}); return;
      default:
        set[place].dictionary()->dictionary(keyNameEJ)->set("Opt" + std::to_string(1 + below(3)), side + ++value_);
    }
  }

  std::mt19937 random_;
  int value_ = 0;
};

using Values = std::set<std::string>;

// Every value of a set of styles but names and numbers, spelled with its key.
Values valuesOf(const Array& set) {
  Values values;
  for (const PropertyList& record : set) {
    const Dictionary* half = record.dictionary()->dictionary(keyNameEJ);
    if (half == nullptr) continue;
    for (const auto& [key, value] : half->entries()) {
      if (key == keyNameTD) continue;
      values.insert(key + " " + std::to_string(value.integerValue()));
    }
  }
  return values;
}

std::multiset<std::string> textsOf(const MergedStyles& merged) {
  std::multiset<std::string> texts;
  for (const PropertyList& record : merged.styles) {
    std::string text;
    for (const auto& [key, value] : record.dictionary()->dictionary(keyNameEJ)->entries()) {
      text += key + " " + std::to_string(value.integerValue()) + " ";
      if (value.array() != nullptr) text += std::to_string(value.array()->back().integerValue()) + " ";
    }
    texts.insert(text);
  }
  return texts;
}

bool hasConflict(const MergedStyles& merged) {
  return std::ranges::any_of(merged.notes,
                             [](const MergeNote& note) { return note.kind == MergeNote::Kind::otherValue; });
}

struct Triple {
  Array base, mine, theirs;
};

Triple makeTriple(unsigned seed) {
  Sets sets(seed);
  Triple triple{sets.make(), {}, {}};
  triple.mine = sets.change(triple.base, 1000);
  triple.theirs = sets.change(triple.base, 2000);
  return triple;
}

TEST(RandomMerges, aSideThatDidNothingTakesTheOther) {
  for (unsigned seed = 0; seed < triples; ++seed) {
    const Triple t = makeTriple(seed);
    ASSERT_EQ(mergeStyles({t.base, t.base, t.theirs}, everythingIsHere).styles, t.theirs) << seed;
    ASSERT_EQ(mergeStyles({t.base, t.mine, t.base}, everythingIsHere).styles, t.mine) << seed;
    ASSERT_EQ(mergeStyles({t.base, t.mine, t.mine}, everythingIsHere).styles, t.mine) << seed;
  }
}

TEST(RandomMerges, noValueComesThatNoneOfTheThreeHad) {
  for (unsigned seed = 0; seed < triples; ++seed) {
    const Triple t = makeTriple(seed);
    Values known = valuesOf(t.base);
    known.merge(valuesOf(t.mine));
    known.merge(valuesOf(t.theirs));
    const Values merged = valuesOf(mergeStyles({t.base, t.mine, t.theirs}, everythingIsHere).styles);
    ASSERT_TRUE(std::ranges::includes(known, merged)) << seed;
  }
}

TEST(RandomMerges, noValueThatASideGaveIsLostWithoutAWord) {
  for (unsigned seed = 0; seed < triples; ++seed) {
    const Triple t = makeTriple(seed);
    const MergedStyles merged = mergeStyles({t.base, t.mine, t.theirs}, everythingIsHere);
    Values found = valuesOf(merged.styles);
    for (const MergeNote& note : merged.notes) {
      if (note.other) found.insert(note.key + " " + std::to_string(note.other->integerValue()));
    }
    const Values before = valuesOf(t.base);
    for (const Array* side : {&t.mine, &t.theirs}) {
      for (const std::string& value : valuesOf(*side)) {
        ASSERT_TRUE(before.contains(value) || found.contains(value)) << seed << ": " << value;
      }
    }
  }
}

TEST(RandomMerges, itMattersNotWhichSideIsMineButForValuesThatBothChanged) {
  for (unsigned seed = 0; seed < triples; ++seed) {
    const Triple t = makeTriple(seed);
    const MergedStyles one = mergeStyles({t.base, t.mine, t.theirs, true}, everythingIsHere);
    const MergedStyles other = mergeStyles({t.base, t.theirs, t.mine, false}, everythingIsHere);
    if (hasConflict(one)) continue;
    ASSERT_EQ(textsOf(one), textsOf(other)) << seed;
  }
}

TEST(RandomMerges, everyRecordOfMineIsWhereTheAnswerSays) {
  for (unsigned seed = 0; seed < triples; ++seed) {
    const Triple t = makeTriple(seed);
    const MergedStyles merged = mergeStyles({t.base, t.mine, t.theirs}, everythingIsHere);
    ASSERT_EQ(merged.placesOfMine.size(), t.mine.size());
    std::set<std::size_t> places;
    for (const auto& place : merged.placesOfMine) {
      if (!place) continue;
      ASSERT_LT(*place, merged.styles.size()) << seed;
      ASSERT_TRUE(places.insert(*place).second) << seed;
    }
    std::set<std::string> names;
    for (const PropertyList& record : merged.styles) {
      ASSERT_TRUE(names.insert(caseFolded(recordName(record))).second) << seed << ' ' << recordName(record);
    }
  }
}

}  // namespace
}  // namespace tarvo
