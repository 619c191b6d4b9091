// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/services/engine.h"
#include "tests/support/encoded_styles.h"

namespace tarvo::test {

inline std::vector<std::string> namesIn(const Array& styles) {
  std::vector<std::string> names;
  for (const PropertyList& style : styles) names.push_back(*style.dictionary()->string("Name"));
  return names;
}

// Joins sets as lists of names: what either side added is there, what either side removed is not.
class ListedJoiner : public StyleJoiner {
 public:
  JoinedStyles join(const Array& base, const Array& mine, const Array& theirs, bool) override {
    const std::vector<std::string> before = namesIn(base), here = namesIn(mine), there = namesIn(theirs);
    const auto has = [](const std::vector<std::string>& names, const std::string& name) {
      return std::ranges::find(names, name) != names.end();
    };
    std::vector<std::string> joined;
    for (const std::string& name : before) {
      if (has(here, name) && has(there, name)) joined.push_back(name);
    }
    for (const std::vector<std::string>* side : {&here, &there}) {
      for (const std::string& name : *side) {
        if (!has(before, name) && !has(joined, name)) joined.push_back(name);
      }
    }
    return {EncodedStyles(joined).records, {}, loses};
  }
  Array withArrived(const Array& base, const Array& sent, const Array& theirs) override {
    const std::vector<std::string> before = namesIn(base), gone = namesIn(sent), there = namesIn(theirs);
    const auto has = [](const std::vector<std::string>& names, const std::string& name) {
      return std::ranges::find(names, name) != names.end();
    };
    std::vector<std::string> joined;
    for (const std::string& name : before) {
      if (has(gone, name) || has(there, name)) joined.push_back(name);
    }
    for (const std::string& name : gone) {
      if (!has(before, name) && has(there, name)) joined.push_back(name);
    }
    return EncodedStyles(joined).records;
  }
  Array seed(const FileService&) override { return EncodedStyles(seedNames).records; }
  void keep(const Array& theirs, FileService&) override { kept.push_back(namesIn(theirs)); }

  std::vector<std::string> seedNames{"標準", "特許"};
  std::vector<std::vector<std::string>> kept;
  bool loses = false;
};

}  // namespace tarvo::test
