// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "app/command_line/usage_error.h"
#include "console/verbs/command.h"
#include "platform/services/result.h"
#include "style/style_check.h"

// Why a verb did not do what it was asked to.
namespace tarvo {

class UserDefaults;

// Well-formed words that cannot be followed.
struct Refusal {
  std::string name;    // of what it is about: a style, a dictionary, an application; or a real path
  std::string key;     // of the text "what; cause; cure"
  std::string detail;  // fills the text's gap
  ExitStatus status = ExitStatus::refused;
};

using Problem = std::variant<Refusal, UsageError, Failure, StyleFault>;

// One line on the error stream, "tarvoctl: NAME: what; cause; cure"; where answers are JSON, the same parts on the
// other stream too. The status with which the verb ends.
ExitStatus tell(Console& console, const Problem& failure);
// The same line for something that is no failure.
void note(Console& console, const Refusal& told);
// A line of words that stand for themselves, about something.
void note(Console& console, const std::string& name, const std::string& words);
void note(Console& console, const Failure& failure);

// Settings that are there and could not be read, where that is so.
void noteUnread(Console& console, const UserDefaults& settings);

// What a verb that changes something says at its end.
struct Outcome {
  std::vector<std::string> changed;  // names of what changed; empty: it was so already
  std::optional<bool> registered;    // whether the style service has it; nothing where it was not asked
};
void say(Console& console, const Outcome& outcome);

// The lock of the user's files, which every verb that changes something takes. Why it does not have it, if so.
std::optional<Problem> takeLock(Console& console);

// The address of a style service that no form of it serves.
UsageError unknownEngine(const std::string& address);

}  // namespace tarvo
