// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/run_script.h"

#include "console/script/interpreter.h"
#include "console/script/memory_shell.h"

namespace tarvo {

ExitStatus runScript(const ScenarioOptions& options, ScenarioClock& clock, const std::string& file,
                     const std::string& text, std::ostream& out, std::ostream& err) {
  MemoryShell shell;
  ScenarioSession session(options, shell, clock);
  if (const std::string problem = session.problem(); !problem.empty()) {
    err << problem << '\n';
    return ExitStatus::usage;
  }
  Interpreter interpreter(session, text, file, out);
  shell.windowHost().step = [&interpreter] { return interpreter.step(); };
  while (interpreter.step()) {
  }
  if (interpreter.failure().empty()) return ExitStatus::done;
  err << interpreter.failure() << '\n';
  return session.isLockedOut() ? ExitStatus::locked : ExitStatus::scriptFailed;
}

}  // namespace tarvo
