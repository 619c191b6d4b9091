// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/command_line/command_table.h"

// Reads the words of a command line by a table, and explains the table. Words are bytes, whatever the locale.
namespace tarvo {

class Texts;

struct WordsRead {
  std::optional<UsageError> error;
  std::string verb;  // as far as one was named; "" for none
};
// Options are stored also where another word is wrong.
WordsRead readWords(const CommandTable& table, const std::vector<std::string>& words);

// What the program takes, or one verb or group of it.
std::string helpText(const CommandTable& table, const std::string& verb, const Texts& texts);

}  // namespace tarvo
