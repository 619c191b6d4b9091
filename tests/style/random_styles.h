// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <random>
#include <string>

#include "platform/plist/property_list.h"

namespace tarvo::test {

// Records that an import accepts: options in every kind that reads as a number, detailed options, lists of
// dictionaries, and keys that nobody knows, with values of every type. The same seed gives the same record.
class RandomStyles {
 public:
  explicit RandomStyles(unsigned seed) : random_(seed) {}
  Dictionary style();

 private:
  unsigned below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }
  PropertyList option(int highest);
  PropertyList value(int depth);
  std::string text();
  Array dictionaryNames();
  void addUnknownKeys(Dictionary& dictionary);
  std::mt19937_64 random_;
};

}  // namespace tarvo::test
