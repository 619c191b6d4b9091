// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <expected>
#include <string>
#include <vector>

#include "app/command_line/usage_error.h"
#include "style/style_edits.h"

namespace tarvo {

// Reads "KEY=VALUE" words: the keys that a pop-up edits, and the values that it offers, as they are stored.
std::expected<std::vector<OptionValue>, UsageError> readOptionWords(const std::vector<std::string>& words);

}  // namespace tarvo
