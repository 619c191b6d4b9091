// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <expected>
#include <optional>
#include <string>

#include "console/verbs/refusal.h"
#include "platform/plist/property_list.h"

namespace tarvo {

// Why a word can name no style, whatever styles there are.
std::optional<UsageError> wrongStyleWord(const std::string& word);

// The style that a word of the command line names: an index, "name:NAME", a whole name, or the unique beginning of one.
// root: of the style file. The divider is refused where a style is needed that can be edited.
std::expected<int, Problem> styleNamed(const Dictionary& root, const Texts& texts, const std::string& word,
                                       bool mayBeDivider);

}  // namespace tarvo
