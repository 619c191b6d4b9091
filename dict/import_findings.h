// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <vector>

#include "dict/dict_controller.h"
#include "platform/plist/plist_findings.h"
#include "style/direction.h"

// What an imported style brought along that does not come into its own here.
// Duty: find it, and say it in words. Not: changing the style, telling.
namespace tarvo {

class Texts;

struct ImportFindings {
  struct List {
    Names missing;  // without a file on this disk; the list keeps them
    Names dropped;  // the same, and the list has lost them
    Names doubled;  // that stand there again, letter case aside
  };
  std::array<List, 2> lists;             // in the order of bothDirections
  std::vector<PlistFinding> unkeepable;  // texts whose characters a style file cannot hold, as they are now
};

// imported: the record as it came; stored: as the style has it now. A folder of dictionaries that cannot be listed
// says nothing about what is missing.
ImportFindings importFindings(const DictController::Services& services, const Dictionary& imported,
                              const Dictionary& stored);

// One sentence for each kind of finding and each direction; none where all is well.
std::vector<std::string> importSentences(const ImportFindings& findings, const Texts& texts);

// A long list of names is cut: it is part of a sentence.
std::string enumerated(const Names& names, const Texts& texts);

}  // namespace tarvo
