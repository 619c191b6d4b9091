// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/script_commands.h"

#include <charconv>

#include "console/script/script_error.h"

namespace tarvo {

namespace {

template <class Number>
Number parse(const std::string& word, const char* what) {
  Number value{};
  const char* end = word.data() + word.size();
  const auto read = std::from_chars(word.data(), end, value);
  if (read.ec != std::errc{} || read.ptr != end) throw ScriptError(word + " is not " + what);
  return value;
}

}  // namespace

const ScriptCommand* findCommand(std::string_view word) {
  for (const auto commands : {gestureCommands(), requestCommands(), setupCommands(), outputCommands()}) {
    for (const ScriptCommand& command : commands) {
      if (command.word == word) return &command;
    }
  }
  return nullptr;
}

std::string takeWord(ScriptLine& line, const char* what) {
  if (line.atEnd()) throw ScriptError(std::string("the line lacks ") + what);
  return line.word();
}

int takeInteger(ScriptLine& line, const char* what) { return parse<int>(takeWord(line, what), what); }

double takeNumber(ScriptLine& line, const char* what) { return parse<double>(takeWord(line, what), what); }

bool takeChoice(ScriptLine& line, std::string_view yes, std::string_view no) {
  const std::string choices = std::string(yes) + " or " + std::string(no);
  const std::string word = takeWord(line, choices.c_str());
  if (word != yes && word != no) throw ScriptError(word + " is not " + choices);
  return word == yes;
}

void takeEnd(ScriptLine& line) {
  if (!line.atEnd()) throw ScriptError("the line holds more than its command takes: " + line.rest());
}

}  // namespace tarvo
