// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "console/script/script_reader.h"

// The commands of the scenario language: one table, a word to a handler. The handlers stand by theme in
// interpreter_gestures, _requests, _setup and _output.
namespace tarvo {

class Interpreter;

struct ScriptCommand {
  // When a command may be used: before a start (and after a kill), while the program runs, after it has ended.
  static constexpr unsigned before = 1, running = 2, terminated = 4, always = 7;
  std::string_view word;
  unsigned when;
  // Takes its words from the line and throws ScriptError for a line that it cannot carry out.
  void (*run)(Interpreter& interpreter, ScriptLine& line);
};

std::span<const ScriptCommand> gestureCommands();
std::span<const ScriptCommand> requestCommands();
std::span<const ScriptCommand> setupCommands();
std::span<const ScriptCommand> outputCommands();
const ScriptCommand* findCommand(std::string_view word);  // null for an unknown word

// Words of a line. They throw ScriptError where the line has too few, too many or something else.
std::string takeWord(ScriptLine& line, const char* what);
int takeInteger(ScriptLine& line, const char* what);
double takeNumber(ScriptLine& line, const char* what);
bool takeChoice(ScriptLine& line, std::string_view yes, std::string_view no);  // whether it was the first
void takeEnd(ScriptLine& line);

}  // namespace tarvo
