// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <array>
#include <charconv>

#include "app/program.h"
#include "console/script/interpreter.h"
#include "console/script/scenario_session.h"
#include "console/script/script_commands.h"
#include "console/script/script_error.h"

// What comes to the program from others: answers to its panels, requests of callers, notifications.
namespace tarvo {

namespace {

void post(Interpreter& interpreter, ScriptLine& line) {
  const std::string name = takeWord(line, "a name");
  takeEnd(line);
  interpreter.session().program().notifications().post(name);
}

std::string bytesOf(const std::string& hexadecimal) {
  if (hexadecimal.size() % 2 != 0) throw ScriptError(hexadecimal + " is no whole number of bytes");
  std::string bytes;
  for (std::size_t at = 0; at < hexadecimal.size(); at += 2) {
    unsigned char value = 0;
    const char* digits = hexadecimal.data() + at;
    if (std::from_chars(digits, digits + 2, value, 16).ptr != digits + 2) {
      throw ScriptError(hexadecimal + " is not hexadecimal");
    }
    bytes += static_cast<char>(value);
  }
  return bytes;
}

void event(Interpreter& interpreter, ScriptLine& line) {
  const std::string bytes = bytesOf(takeWord(line, "bytes"));
  takeEnd(line);
  interpreter.session().program().requests().event(bytes);
}

void eventNone(Interpreter& interpreter, ScriptLine& line) {
  takeEnd(line);
  interpreter.session().program().requests().event(std::nullopt);
}

void eventText(Interpreter& interpreter, ScriptLine& line) {
  const std::string code = takeWord(line, "a code");
  takeEnd(line);
  interpreter.session().program().requests().eventText(code);
}

void answer(Interpreter& interpreter, ScriptLine& line) {
  ScriptedPanels& panels = interpreter.session().panels();
  const std::string kind = takeWord(line, "open, save, cancel or alert");
  if (kind == "alert") {
    const int button = takeInteger(line, "a button");
    takeEnd(line);
    panels.answerAlert(button - 1);
  } else if (kind == "cancel") {
    takeEnd(line);
    panels.answerCancel();
  } else if (kind == "open" || kind == "save") {
    const DiskPath path = interpreter.session().path(takeWord(line, "a path"));
    takeEnd(line);
    kind == "open" ? panels.answerOpen(path) : panels.answerSave(path);
  } else {
    throw ScriptError("there is no answer to " + kind);
  }
}

constexpr unsigned running = ScriptCommand::running;
constexpr std::array commands{ScriptCommand{"post", running, post}, ScriptCommand{"event", running, event},
                              ScriptCommand{"event-none", running, eventNone},
                              ScriptCommand{"event-text", running, eventText},
                              ScriptCommand{"answer", ScriptCommand::before | running, answer}};

}  // namespace

std::span<const ScriptCommand> requestCommands() { return commands; }

}  // namespace tarvo
