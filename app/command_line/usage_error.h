// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/services/failure_text.h"

// Words of a command line that cannot be understood, told the same way by every program.
namespace tarvo {

class Texts;

struct UsageError {
  enum class Kind { unknownOption, unknownVerb, unexpected, wrongValue, ambiguous, missing, missingValue };
  Kind kind = Kind::unexpected;
  std::string word;                  // the wrong word, or the name of the missing one
  std::vector<std::string> allowed;  // the words that can stand there; empty: see otherwise
  std::string otherwise;             // what can, as the key of a text or as it is
  std::string owner;                 // the option or argument whose value is wrong
};

// The wrong word, behind what it is a value of.
std::string subjectOf(const UsageError& error);
// What is wrong; what is allowed; the nearest allowed word, where the word resembles one of them and not several.
MessageParts reasonOf(const UsageError& error, const Texts& texts);
// One line without its end: program, subject, reason.
std::string told(const UsageError& error, std::string_view program, const Texts& texts);

// The word that begins with this one, else the one that the fewest single characters put in, left out or exchanged make
// of it; of equals the first. Empty when there is none that shares anything with it.
std::string nearestWord(std::string_view word, const std::vector<std::string>& allowed);

}  // namespace tarvo
