// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/run_script.h"

#include "app/command_line/common_options.h"
#include "console/script/interpreter.h"
#include "console/script/memory_shell.h"
#include "console/verbs/refusal.h"
#include "platform/services/failure_text.h"
#include "platform/text/printable.h"

namespace tarvo {

ExitStatus runScript(const ScenarioOptions& options, ScenarioClock& clock, const std::string& file,
                     const std::string& text, std::ostream& out, std::ostream& err) {
  MemoryShell shell;
  ScenarioSession session(options, shell, clock);
  CommonOptions shown;
  shown.product.language = options.product.language;
  if (!session.problem().empty()) {
    err << told(unknownEngine(session.product().engineURL()), "tarvoctl", textsToTell(shown)) << '\n';
    return ExitStatus::usage;
  }
  if (const std::optional<Failure>& unread = session.product().unread()) {
    err << "tarvoctl: " << printable(failureText(*unread, textsToTell(shown))) << '\n';
    return ExitStatus::refused;
  }
  Interpreter interpreter(session, text, file, out);
  shell.windowHost().step = [&interpreter] { return interpreter.step(); };
  while (interpreter.step()) {
  }
  if (interpreter.failure().empty()) return ExitStatus::done;
  err << printable(interpreter.failure()) << '\n';
  return session.isLockedOut() ? ExitStatus::locked : ExitStatus::scriptFailed;
}

}  // namespace tarvo
