// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "style/direction.h"

namespace tarvo {

// The kinds of dictionaries: those that a style lists, the user's own, and the user's translation memories. Operations
// and tags know them as 0, 1 and 2.
enum class DictionaryKind { technical, user, memory };

constexpr std::optional<DictionaryKind> dictionaryKindForNumber(int number) {
  if (number < 0 || number > static_cast<int>(DictionaryKind::memory)) return std::nullopt;
  return static_cast<DictionaryKind>(number);
}
constexpr int numberOf(DictionaryKind kind) { return static_cast<int>(kind); }

// The extension of the user's own files, without a dot; "" for technical dictionaries, which have several. Those of
// user dictionaries are also the extensions of the templates.
constexpr std::string_view extensionOf(DictionaryKind kind, Direction direction) {
  const bool isEnglish = direction == Direction::englishToJapanese;
  if (kind == DictionaryKind::user) return isEnglish ? "eud2" : "jud";
  if (kind == DictionaryKind::memory) return isEnglish ? "etm" : "jtm";
  return "";
}

}  // namespace tarvo
