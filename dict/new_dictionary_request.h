// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarvo {

// What is asked for when a dictionary is made or dictionaries are added: the style pane has one, which adding through
// the picker and its new-dictionary sheet share, and the picker has another.
struct NewDictionaryRequest {
  int dTypeNum = 1;       // 1 user dictionary, 2 translation memory; scripts may set others, which make nothing
  bool isEJ = true;       // English to Japanese
  std::string fDictName;  // file name of the new dictionary, set by the last name check
};

}  // namespace tarvo
