# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Every rule of script/lint fires and knows its limits; the test run counts what fails, crashes and is skipped.

Words that the rules look for are put together here, so that this file passes them.
"""

import importlib.machinery
import importlib.util
import io
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

TOP = pathlib.Path(__file__).resolve().parent.parent.parent
sys.dont_write_bytecode = True


def load(path):
    loader = importlib.machinery.SourceFileLoader(pathlib.Path(path).stem, str(TOP / path))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


lint = load("script/lint")
run_all = load("tests/run_all.py")
killed = load("tests/soak/killed_programs.py")

LICENCE = "".join(f"// {line}\n" for line in lint.LICENCE)


def findings(place, text, exceptions=()):
    found = lint.Findings(list(exceptions))
    lint.check_file(place, text, found)
    return found.lines


class Words(unittest.TestCase):
    def test_each_word_is_found_in_a_document(self):
        for text in (
            "see the sp" "ec for it", "the Specif" "ication says", "works as sp" "ecified", "like the orig" "inal does",
            "as Pa" "rt 1.2 demands", "an acceptance r" "ow", "by rul" "ing", "closes iss" "ue #2", "A1." "2-05", "AX" "w-25",
            "D" "-11", "C" "-30", "B" "-12", "T" "-04", "R" "2 holds", "TO" "DO later", "FIX" "ME", "XX" "X", "a st" "ub",
            "a dum" "my", "not yet imple" "mented", "placeholder" " implementation", "/wo" "rk/main", "http://deb.debian" ".org/debian"):
            with self.subTest(text):
                self.assertEqual(1, len(findings("docs/page.md", f"first line\n{text}\n")), text)

    def test_a_file_name_is_read_too(self):
        self.assertEqual(1, len(findings("docs/sp" "ec.md", "")))

    def test_a_commit_message_is_read_like_a_file(self):
        found = lint.Findings([])
        lint.check_words("commit abc1234", "Subject\n\nas Pa" "rt 2.1 demands", found)
        self.assertTrue(found.lines[0].startswith("commit abc1234:3: [tracker]"), found.lines)

    def test_every_commit_is_looked_at(self):
        if lint.git("rev-parse", "HEAD") is None:
            self.skipTest("a copy without its history")
        self.assertEqual(int(lint.git("rev-list", "--count", "HEAD")), len(lint.commit_messages()))

    def test_harmless_words_pass(self):
        text = "specific, special, UTF-16, CP932, partly 1.2, PlaceholderText, XXXXXX, stubborn, A-1 road, R200\n"
        self.assertEqual([], findings("docs/page.md", text))

    def test_the_curves_of_a_picture_pass(self):
        self.assertEqual([], findings("docs/images/a.svg", '<path d="M3 4C' '-30 4T' '-04 5"/>'))

    def test_the_place_of_a_finding_is_told(self):
        self.assertEqual("docs/page.md:2: [later] leaves work for later: do it or leave it out: TO" "DO", findings("docs/page.md", "one\nTO" "DO\n")[0])


class Code(unittest.TestCase):
    def fires(self, place, line, rule):
        found = findings(place, f"{LICENCE}{line}\n")
        self.assertEqual(1, len(found), found)
        self.assertIn(f"{place}:3: [{rule}]", found[0])

    def passes(self, place, line):
        self.assertEqual([], findings(place, f"{LICENCE}{line}\n"))

    def test_only_binders_hands_and_tests_act_as_the_user(self):
        for gesture in lint.GESTURES:
            self.fires("qt/panes/style_pane.cpp", f"  button.{gesture}();", "gesture")
        self.fires("app/app_controller.cpp", "  popup.userChoose(2);", "gesture")
        self.fires("app/app_controller.cpp", "  toolbar_.userShow(true);", "gesture")
        self.fires("qt/panes/style_pane.cpp", "  connect(&button, &Button::userPress);", "gesture")
        self.fires("console/verbs/style_commands.cpp", "  popup->userChoose (2);", "gesture")
        for place in ("qt/bind/bind_popup.cpp", "console/script/memory_hand.cpp", "tests/style/x_test.cpp", "platform/controls/controls.cpp",
                      "app/toolbar.cpp"):
            self.passes(place, "  popup.userChoose(2);")
        self.passes("app/app_controller.cpp", "// a binder calls userChoose(index) then")
        self.passes("app/app_controller.cpp", "  const UserDefaults defaults(files, userDefaultsPath(locations));")

    def test_the_headers_of_the_controls_tell_the_gestures(self):
        names, places = lint.read_gestures({
            "app/dial.h": "class Dial final : public Control {\n  void userTurn(int by);  // and userGuess()\n  void setBy(int by);\n};\n",
            "app/rooms.h": "struct Rooms {\n  void userRows();\n};\n"})
        self.assertEqual((["userTurn"], ["app/dial.cpp", "app/dial.h"]), (names, sorted(places)[:2]))
        self.assertLessEqual({"userPress", "userChoose", "userDrop", "userMove", "userShow", "userOrder"}, set(lint.GESTURES))

    def test_modules_of_qt_are_not_included(self):
        for module in lint.QT_MODULES.split("|"):
            self.fires("qt/main.cpp", f"#include <Qt{module}>", "qt-module")
        self.fires("qt/main.cpp", "#include <QtWidgets/QtWidgets>", "qt-module")
        for header in ("<QWidget>", "<QtMath>", "<QtWidgets/QLabel>", '"qt/look/icons.h"'):
            self.passes("qt/main.cpp", f"#include {header}")

    def test_mocks_are_not_used(self):
        self.fires("tests/style/x_test.cpp", "#include <g" "mock/g" "mock.h>", "gmock")

    def test_a_room_has_no_member_that_does_nothing(self):
        self.fires("dict/dict_controller.cpp", "void DictController::loadDictionary(std::string_view name) {}", "pretence")
        self.fires("dict/dict_controller.cpp", "int DictController::count() const {\n}", "pretence")
        for line in ("DictController::DictController() {}", "Names::Names(int count) : count_(count) {}", "void Names::clear() { names_.clear(); }"):
            self.passes("dict/dict_controller.cpp", line)

    def test_a_named_exception_holds_for_its_rule_file_and_text_alone(self):
        line = "void AppController::alertStartedApplication(int) {}"
        exceptions = lint.read_exceptions(["# comment", "", "pretence | app/* | ::alertStartedApplication( | told nowhere"])
        self.assertEqual([], findings("app/app_controller.cpp", LICENCE + line, exceptions))
        self.assertEqual(1, len(findings("dict/app_controller.cpp", LICENCE + line, exceptions)))
        self.assertEqual(1, len(findings("app/app_controller.cpp", LICENCE + line.replace("alert", "other"), exceptions)))

    def test_code_and_scripts_open_with_the_licence(self):
        self.assertEqual(1, len(findings("app/a.cpp", "int a;\n")))
        self.assertEqual(1, len(findings("script/a", "#!/bin/sh\nexit\n")))
        self.assertEqual(1, len(findings("app/a.cpp", LICENCE.replace("MIT", "BSD"))))
        self.assertEqual([], findings("script/a", "#!/bin/sh\n" + LICENCE.replace("//", "#")))
        self.assertEqual([], findings("docs/a.md", "text\n"))

    def test_a_folder_may_hold_sixty_files_of_its_own(self):
        found = lint.Findings([])
        lint.check_folders([f"room/{number}" for number in range(lint.MOST_FILES)] + ["room/below/file", "file"], found)
        self.assertEqual([], found.lines)
        lint.check_folders([f"room/{number}" for number in range(lint.MOST_FILES + 1)], found)
        self.assertEqual(["room:0: [folder] holds 61 files, 60 are the limit: sort them into folders"], found.lines)

    def test_a_file_in_another_form_is_found(self):
        if lint.formatter() is None:
            self.skipTest("clang-format of the wanted version is not here")
        place = TOP / "build" / "badly_formatted.cpp"
        place.parent.mkdir(exist_ok=True)
        place.write_text("int  a ;\n", "utf-8")
        try:
            found = lint.Findings([])
            lint.check_form(["build/badly_formatted.cpp"], found)
            self.assertEqual(1, len(found.lines), found.lines)
        finally:
            place.unlink()

    def test_the_program_fails_with_its_findings(self):
        place = TOP / "build" / "badly_worded.md"
        place.parent.mkdir(exist_ok=True)
        place.write_text("TO" "DO\n", "utf-8")
        try:
            done = subprocess.run([sys.executable, "script/lint", "build/badly_worded.md"], cwd=TOP, capture_output=True, text=True, check=False)
            self.assertEqual((1, True), (done.returncode, done.stdout.startswith("build/badly_worded.md:1: [later]")))
        finally:
            place.unlink()


class Formatting(unittest.TestCase):
    def test_a_file_that_was_removed_and_not_staged_is_passed_over(self):
        with tempfile.TemporaryDirectory() as folder:
            top = pathlib.Path(folder)
            for name in ("script", "tools"):
                (top / name).mkdir()
            shutil.copy(TOP / "script" / "format", top / "script")
            formatter = top / "tools" / "clang-format-19"
            formatter.write_text(f'#!/bin/sh\nprintf "%s\\n" "$@" > "{top}/seen"\n')
            formatter.chmod(0o755)
            for name in ("kept of two.cpp", "removed.cpp"):
                (top / name).write_text("int a;\n")
            subprocess.run(["git", "init", "-q"], cwd=top, check=True)
            subprocess.run(["git", "add", "."], cwd=top, check=True)
            (top / "removed.cpp").unlink()
            environment = os.environ | {"PATH": f"{top}/tools:{os.environ['PATH']}"}
            subprocess.run([top / "script" / "format"], env=environment, check=True)
            self.assertEqual("-i\nkept of two.cpp\n", (top / "seen").read_text())


class KilledPrograms(unittest.TestCase):
    """What the rounds of kills call a style file with all edits that were told."""

    def setUp(self):
        self.before = {"Selection": {"MG": 0}, "Style": [killed.new_style(number) for number in range(3)]}
        self.edits = killed.Edits(self.before, None)
        self.edits.add([], (("Selection", "MG"), 1))
        self.edits.add([], (("Style", 1, "Name"), "Patents"))

    def edit_of(self, told, *changes):
        found = killed.copy.deepcopy(self.before)
        for way, value in changes:
            killed.put(found, way, value)
        return killed.Rounds.edit_of(found, killed.copy.deepcopy(self.before), self.edits, told)

    def test_file_as_after_an_edit_holds_it(self):
        self.assertEqual(self.edit_of(0), 0)
        self.assertEqual(self.edit_of(0, (("Selection", "MG"), 1)), 1)
        self.assertEqual(self.edit_of(1, (("Selection", "MG"), 1), (("Style", 1, "Name"), "Patents")), 2)

    def test_file_as_before_an_edit_that_was_told_has_lost_it(self):
        self.assertIsNone(self.edit_of(2, (("Selection", "MG"), 1)))

    def test_file_with_the_second_edit_alone_is_mixed(self):
        self.assertIsNone(self.edit_of(0, (("Style", 1, "Name"), "Patents")))


class TestRun(unittest.TestCase):
    OUTPUT = "[ RUN      ] S.bad\na.cpp:3: Failure\nwrong\n[  FAILED  ] S.bad (0 ms)\n[ RUN      ] S.left\na.cpp:9: Skipped\nno disk\n\n[  SKIPPED ] S.left (0 ms)\n"

    def setUp(self):
        self.out = io.StringIO()
        self.tally = run_all.Tally(self.out)

    def report(self, **tests):
        rows = {"good": {"status": "RUN", "result": "COMPLETED"},
                "bad": {"status": "RUN", "result": "COMPLETED", "failures": [{"failure": "wrong"}]},
                "left": {"status": "RUN", "result": "SKIPPED"},
                "off": {"status": "NOTRUN", "result": "SUPPRESSED"}}
        return {"testsuites": [{"name": "S", "testsuite": [{"name": name} | rows[name] for name in tests]}]}

    def test_passed_failed_and_skipped_are_added_up(self):
        self.tally.add_program("p", 0, "", self.report(good=1))
        self.assertEqual("1 passed, 0 failed", self.tally.closing_line())
        self.tally.add_program("p", 1, self.OUTPUT, self.report(good=1, bad=1, left=1, off=1))
        self.assertEqual("2 passed, 1 failed, 2 skipped", self.tally.closing_line())
        self.assertIn("FAILED p: S.bad\na.cpp:3: Failure\nwrong\n", self.out.getvalue())
        self.assertIn("skipped p: S.left: no disk\n", self.out.getvalue())

    def test_a_crash_counts_as_failed(self):
        status, output, report = run_all.run_program(run_all.words_for("/bin/false"))
        self.tally.add_program("p", status, output, report)
        self.assertEqual("0 passed, 1 failed", self.tally.closing_line())

    def test_a_program_that_is_not_there_counts_as_failed(self):
        self.tally.add_program("p", *run_all.run_program(run_all.words_for(TOP / "no such program")))
        self.assertEqual(1, self.tally.failed)

    def test_a_bad_end_after_good_tests_counts_as_failed(self):
        self.tally.add_program("p", 23, "leak", self.report(good=1))
        self.assertEqual("1 passed, 1 failed", self.tally.closing_line())


if __name__ == "__main__":
    unittest.main()
