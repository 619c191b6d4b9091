// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>

#include "app/user_files.h"
#include "console/script/interpreter.h"
#include "console/script/manual_run_loop.h"
#include "console/script/scenario_session.h"
#include "platform/posix/instance_lock.h"
#include "platform/posix/temporaries.h"
#include "qt/look/tarvo_style.h"
#include "tests/qt/qt_scenario_shell.h"
#include "tests/qt/script_run.h"

// window_script FILE --root DIR --home DIR: the script over the real window, off-screen, on those files. The lock of
// the home is taken as the manager takes it. Prints what the script prints; why it failed goes to the error output.
namespace tarvo::test {
namespace {

int runOverTheWindow(const std::string& file, const ScenarioOptions& options) {
  std::ostringstream text;
  text << std::ifstream(file).rdbuf();
  QtScenarioShell shell;
  ManualRunLoop clock;
  ScenarioSession session(options, shell, clock);
  if (!session.problem().empty() || session.product().unread()) {
    std::cerr << "window_script: no program can be started with these files\n";
    return 1;
  }
  Interpreter interpreter(session, text.str(), file, std::cout);
  ScriptRun(interpreter).run();
  if (interpreter.failure().empty()) return 0;
  std::cerr << interpreter.failure() << '\n';
  return 1;
}

}  // namespace
}  // namespace tarvo::test

int main(int argc, char** argv) {
  if (argc != 6 || std::string_view(argv[2]) != "--root" || std::string_view(argv[4]) != "--home") {
    std::cerr << "usage: window_script FILE --root DIR --home DIR\n";
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  tarvo::applyLook(tarvo::Scheme::light, "en");
  tarvo::ScenarioOptions options;
  options.product.root = argv[3];
  options.product.home = argv[5];
  options.product.language = "en";
  std::optional<tarvo::InstanceLock> lock;
  options.takeLock = [&lock](const tarvo::UserPlace& place) -> tarvo::Result<> {
    lock.emplace(place.lock);
    if (lock->state() == tarvo::InstanceLock::State::held) tarvo::sweepTemporaries(place.home, place.folders);
    return {};
  };
  return tarvo::test::runOverTheWindow(argv[1], options);
}
