// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarvo {

// Kinds of the user's own dictionaries.
inline constexpr int userDictionaryKind = 1, memoryKind = 2;

inline constexpr const char* newDicNotification = "newDicNotification";  // its object: the file name to be made

// What is asked for when a dictionary is made or dictionaries are added: the style pane has one, which adding through
// the picker and its new-dictionary sheet share, and the picker has another.
struct NewDictionaryRequest {
  int dTypeNum = userDictionaryKind;  // a script may set a kind that there is not: it makes nothing
  bool isEJ = true;                   // English to Japanese
  std::string fDictName;              // file name of the new dictionary, set by the last name check
};

}  // namespace tarvo
