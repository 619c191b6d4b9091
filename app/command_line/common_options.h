// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/command_line/command_words.h"
#include "app/product.h"
#include "platform/services/texts.h"

// The options that the window and the console tool have in common, in one table.
namespace tarvo {

inline constexpr const char* defaultBusName = "com.wordhaven.TarvoManager";

struct CommonOptions {
  ProductOptions product;
  std::optional<std::string> busName;  // on the session bus; "none" to stay off it
  std::string clock;                   // "manual", "real"; "" as the verb has it
  bool json = false, reseed = false, help = false, version = false;
};

enum class Front { window, console };

// The rows that a program has, which store into these options.
std::vector<OptionRow> commonOptions(CommonOptions& into, Front front);

// Those that were given and that the window takes, as words for it.
std::vector<std::string> wordsForWindow(const CommonOptions& options);

// The shipped texts in the language that was asked for, for help and usage errors: whatever the other options say.
Texts textsToTell(const CommonOptions& options);

}  // namespace tarvo
