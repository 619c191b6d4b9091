// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/interpreter.h"

#include "app/program.h"
#include "console/script/hand.h"
#include "console/script/scenario_session.h"
#include "console/script/script_commands.h"

namespace tarvo {

namespace {

std::vector<std::string> split(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    lines.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

unsigned bitOf(ScenarioSession::Phase phase) {
  switch (phase) {
    case ScenarioSession::Phase::none: return ScriptCommand::before;
    case ScenarioSession::Phase::running: return ScriptCommand::running;
    case ScenarioSession::Phase::terminated: return ScriptCommand::terminated;
  }
  return 0;
}

const char* nameOf(ScenarioSession::Phase phase) {
  switch (phase) {
    case ScenarioSession::Phase::none: return "before a start";
    case ScenarioSession::Phase::running: return "while the program runs";
    case ScenarioSession::Phase::terminated: return "after the program has ended";
  }
  return "";
}

}  // namespace

Interpreter::Interpreter(ScenarioSession& session, const std::string& text, std::string file, std::ostream& output)
    : session_(session), lines_(split(text)), file_(std::move(file)), output_(output) {}

bool Interpreter::isHeld() const { return session_.panels().isAlertUp(); }

bool Interpreter::step() {
  while (!over_ && next_ < lines_.size()) {
    const std::size_t line = next_++;
    try {
      if (ScriptLine(lines_[line]).atEnd()) continue;
      run(lines_[line]);
    } catch (const ScriptError& error) {
      fail(static_cast<int>(line) + 1, error.what());
    } catch (const Unfinished&) {
      over_ = true;
    }
    return !over_;
  }
  finish();
  return false;
}

void Interpreter::run(const std::string& text) {
  ScriptLine line(text);
  const std::string word = line.word();
  const ScriptCommand* command = findCommand(word);
  if (command == nullptr) throw ScriptError("there is no command " + word);
  const ScenarioSession::Phase phase = session_.phase();
  if ((command->when & bitOf(phase)) == 0) throw ScriptError(word + " cannot be used " + nameOf(phase));
  command->run(*this, line);
  session_.clock().settle();
  if (!session_.panels().failure().empty()) throw ScriptError(session_.panels().failure());
  if (!session_.hasHand()) return;
  const std::string difference = session_.shell().hand().outOfStep();
  if (!difference.empty()) throw ScriptError(difference);
}

void Interpreter::finish() {
  if (over_) return;
  over_ = true;
  const int line = static_cast<int>(lines_.size());
  if (session_.panels().hasAnswers()) fail(line, "an answer is left over");
  if (session_.phase() != ScenarioSession::Phase::running) return;  // its windows went with it
  const Covers& covers = session_.program().windows().covers();
  if (const Window* modal = covers.modalWindow()) {
    fail(line, "the script ends inside the modal run of " + modal->name());
  }
  for (const Covers::Sheet& sheet : covers.sheets()) {
    fail(line, sheet.window != nullptr ? "the script ends with the sheet " + sheet.window->name() + " up"
                                       : "the script ends with a save panel over " + sheet.host->name());
  }
}

void Interpreter::fail(int line, const std::string& reason) {
  if (failure_.empty()) failure_ = file_ + ":" + std::to_string(line) + ": " + reason;
  over_ = true;
}

Control& Interpreter::control(const std::string& name) const {
  Control* found = session_.program().interface().find(name);
  if (found == nullptr) throw ScriptError("there is no control " + name);
  return *found;
}

Control& Interpreter::reachable(const std::string& name) const {
  Control& found = control(name);
  if (!session_.program().windows().isReachable(found)) throw NotReachable(name + " is not reachable");
  return found;
}

void Interpreter::print(Json object) {
  output_ << writeJson(object) << '\n' << std::flush;  // who works with the script sees each line when it happens
  printed_.push_back(std::move(object));
}

}  // namespace tarvo
