// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/plist/property_list.h"

// What a property list holds that other readers, or a file in the XML form, do not take as it is.
// Duty: find it and say where. Not: deciding what follows from it.
namespace tarvo {

struct PlistFinding {
  std::string keys;  // the way to the value from the root: keys, and places in lists from 0, with "/" between
  std::string text;  // of the value
  friend bool operator==(const PlistFinding&, const PlistFinding&) = default;
};

// Dates that are none (isSoundDate).
std::vector<PlistFinding> unsoundDates(const Dictionary& list);
std::vector<PlistFinding> unsoundDates(const Array& list);
// Texts with a character that a file cannot hold (canHoldText), which becomes U+FFFD there; a key that has one itself
// is found too.
std::vector<PlistFinding> unkeepableTexts(const Dictionary& list);

}  // namespace tarvo
