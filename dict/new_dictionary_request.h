// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "style/dictionary_kind.h"

namespace tarvo {

// What is asked for when a dictionary is made or dictionaries are added: the style pane has one, which adding through
// the picker and its new-dictionary sheet share, and the picker has another.
struct NewDictionaryRequest {
  // Nothing for a kind that there is not, by a tag that no control has; neither this nor a technical one makes
  // anything.
  std::optional<DictionaryKind> kind = DictionaryKind::user;
  Direction direction = Direction::englishToJapanese;
  std::string fDictName;  // file name of the new dictionary, set by the last name check
};

}  // namespace tarvo
