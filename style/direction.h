// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "style/style_keys.h"

namespace tarvo {

// The two directions of a translation. Controls bear a direction as their tag: 0 English to Japanese, any other
// Japanese to English.
enum class Direction { englishToJapanese, japaneseToEnglish };

inline constexpr std::array<Direction, 2> bothDirections{Direction::englishToJapanese, Direction::japaneseToEnglish};

constexpr Direction directionForTag(int tag) {
  return tag == 0 ? Direction::englishToJapanese : Direction::japaneseToEnglish;
}
constexpr int tagOf(Direction direction) { return static_cast<int>(direction); }

// The key of a record's half.
constexpr std::string_view halfKey(Direction direction) {
  return direction == Direction::englishToJapanese ? keyNameEJ : keyNameJE;
}

}  // namespace tarvo
