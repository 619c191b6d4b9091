// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <ostream>
#include <string>
#include <vector>

#include "console/script/script_reader.h"
#include "platform/plist/json.h"

namespace tarvo {

class Control;
class ScenarioSession;

// Runs a script of the scenario language line by line.
// Duty: read a line, let its command act, hold what was printed for "expect", say where and why a script failed. Not:
// the program under the script and its surroundings, which the session holds.
//
// One cursor serves all nesting depths: a line that opens a modal window does not end before that window's run, and the
// lines after it are run from inside. A shell without a view calls step() from its modal run until that is stopped. A
// shell with an event loop posts itself a call for the next line before it runs the present one, so that nested loops
// deliver it; when isHeld() it must not step but post again.
class Interpreter {
 public:
  // text: the script, UTF-8. file: its name in messages. output: what printing commands print, one object a line.
  Interpreter(ScenarioSession& session, const std::string& text, std::string file, std::ostream& output);

  // Runs the next line that holds a command. False: the script is over, by its end or a failure; nothing runs any more.
  // Throws nothing.
  bool step();
  // An alert is up inside the running line: it is answered first.
  bool isHeld() const;
  // "FILE:LINE: reason" of the first failure, "" when all went well.
  const std::string& failure() const { return failure_; }

  // For the commands.
  ScenarioSession& session() { return session_; }
  Control& control(const std::string& name) const;    // throws ScriptError for an unknown name
  Control& reachable(const std::string& name) const;  // throws NotReachable besides
  void beginPrinting() { printed_.clear(); }
  void print(Json object);
  std::deque<Json>& printed() { return printed_; }

 private:
  void run(const std::string& line);
  void finish();
  void fail(int line, const std::string& reason);
  ScenarioSession& session_;
  std::vector<std::string> lines_;
  std::string file_, failure_;
  std::ostream& output_;
  std::deque<Json> printed_;  // what the last printing command printed and no line has taken
  std::size_t next_ = 0;
  bool over_ = false;
};

}  // namespace tarvo
