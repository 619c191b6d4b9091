// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "dict/dict_controller.h"
#include "platform/plist/property_list.h"

// The technical dictionaries of a style for verbs that only read: nothing is made, not even a missing common
// dictionary. A direction is 0 for English to Japanese, 1 for Japanese to English, as the tables are tagged.
namespace tarvo {

class Product;

std::string_view halfOf(int direction);  // the key of the direction's half of a record

struct DictionaryLists {
  Names loaded;     // in the style's order, as far as they are on the disk
  Names available;  // the others in the folder
};

DictionaryLists readDictionaryLists(Product& product, const Dictionary& record, int direction);

// The position of a name, ignoring case; -1 when it is not there.
int positionOf(const Names& names, const std::string& name);

}  // namespace tarvo
