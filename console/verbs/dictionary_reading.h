// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "dict/dict_controller.h"
#include "platform/plist/property_list.h"

// The technical dictionaries of a style for verbs that only read: nothing is made, not even a missing common
// dictionary.
namespace tarvo {

class Product;

struct DictionaryLists {
  Names loaded;     // in the style's order, as far as they are on the disk
  Names available;  // the others in the folder
};

DictionaryLists readDictionaryLists(Product& product, const Dictionary& record, Direction direction);

// The position of a name, ignoring case; -1 when it is not there.
int positionOf(const Names& names, const std::string& name);

}  // namespace tarvo
