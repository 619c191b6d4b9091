// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "console/script/interpreter.h"
#include "console/script/manual_run_loop.h"
#include "console/script/scenario_session.h"
#include "tests/qt/qt_scenario_shell.h"
#include "tests/qt/script_run.h"
#include "tests/support/scenario_files.h"

// Every scenario file over the real window.
namespace tarvo::test {
namespace {

std::string textOf(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

// The first failure of a script over the window, "" when all went well.
std::string failureOf(const ScenarioFile& file, const ScenarioRoot& root, const std::string& text) {
  QtScenarioShell shell;
  ManualRunLoop clock;
  ScenarioSession session({.product = scenarioProduct(file, root), .folder = DiskPath(file.folder)}, shell, clock);
  if (!session.problem().empty()) return session.problem();
  if (session.product().unread()) return "cannot read " + session.product().unread()->path;
  std::ostringstream output;
  Interpreter interpreter(session, text, file.path, output);
  ScriptRun(interpreter).run();
  return interpreter.failure().empty() ? std::string() : interpreter.failure() + "\n" + output.str();
}

class WindowScenario : public testing::TestWithParam<ScenarioFile> {};

TEST_P(WindowScenario, runs) {
  const ScenarioFile& file = GetParam();
  const ScenarioRoot root(file.root);
  if (file.needsAttributes && !keepsAttributes(root.folder())) GTEST_SKIP() << "the disk keeps no attributes";
  EXPECT_EQ(failureOf(file, root, textOf(file.path)), "");
}

INSTANTIATE_TEST_SUITE_P(OverTheWindow, WindowScenario, testing::ValuesIn(scenarioFiles()),
                         [](const testing::TestParamInfo<ScenarioFile>& scenario) { return scenario.param.name; });

struct Script {
  const char *name, *lines, *reason;
};

constexpr const char* styles =
    "file copy fixtures/root4.plist home:/Library/Preferences/Wordhaven/TarvoStyle2009.plist\n";
constexpr Script failing[] = {
    {"aWrongExpectation", "start\nshow ejTDTable\nexpect {\"rows\":-2}", "SCRIPT:4: "},
    {"aDisabledButton", "start\npress ejRaiseDicButton", "SCRIPT:3: ejRaiseDicButton is not reachable"},
    {"aSegmentWithoutATool", "start\nsegment TEAppSeg3 2", "SCRIPT:3: style.TEAppSeg3.2 cannot be seen"},
    {"aDivider", "start\nchoose stylePopup 2", "SCRIPT:3: style.stylePopup has no item 2"},
    {"aPageWithoutATab", "start\ntab myTabView 1", "SCRIPT:3: manager.myTabView has no such widget"},
    {"theEndInsideADialog", "screen 800 600\ndefault NoDialogState 0\nstart",
     "SCRIPT:4: the script ends inside the modal run"},
    {"theWindowBehindADialog", "screen 800 600\ndefault NoDialogState 0\nstart\npress OA",
     "SCRIPT:5: OA is not reachable"},
    {"aLeftOverAnswer", "start\nanswer alert 1", "SCRIPT:3: an answer is left over"},
};

void PrintTo(const Script& script, std::ostream* out) { *out << script.name; }

class FailingScript : public testing::TestWithParam<Script> {};

TEST_P(FailingScript, saysWhereAndWhy) {
  ScenarioFile file;
  file.path = "SCRIPT";
  file.folder = scenarioFolder();
  file.options = {"--strings", "none"};
  const std::string failure = failureOf(file, ScenarioRoot(file.root), std::string(styles) + GetParam().lines);
  EXPECT_EQ(failure.substr(0, std::string(GetParam().reason).size()), GetParam().reason) << failure;
}

INSTANTIATE_TEST_SUITE_P(OverTheWindow, FailingScript, testing::ValuesIn(failing),
                         [](const testing::TestParamInfo<Script>& script) { return script.param.name; });

}  // namespace
}  // namespace tarvo::test
