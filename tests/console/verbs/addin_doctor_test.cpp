// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "tests/console/verbs/addin_verb_test.h"

// What the doctor tells of macros and mail scripts.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

TEST_F(AddinVerbs, theDoctorTellsOfApplicationsThatAreForgotten) {
  fs::rename(root_.root() + "/Applications/O11/Word.app", root_.root() + "/away");
  startAndEnd();  // the rows are remembered, without Word
  EXPECT_EQ(diagnosis("Word 2011"), "nothing");
  fs::rename(root_.root() + "/away", root_.root() + "/Applications/O11/Word.app");
  EXPECT_EQ(diagnosis("Word 2011"),
            "problem: is not listed: it was not there at the end of an earlier run; without the setting Office it "
            "comes back");
}

TEST_F(AddinVerbs, theDoctorSaysWhyAnInstallWouldFail) {
  EXPECT_EQ(diagnosis("Word 2011"), "ok: ");
  EXPECT_EQ(diagnosis("install folder of Word 2011"),
            "missing: an install would fail: " + root_.root() + startup + ": Failure.install; Cause.absent");
  EXPECT_EQ(diagnosis("macro of Word 2011"), "missing: not installed");
  makeFolder(startup);
  EXPECT_EQ(diagnosis("install folder of Word 2011"), "ok: ");
  fs::remove(root_.root() + "/Bundle/Macros/2011/Tarvo.dotm");
  EXPECT_EQ(diagnosis("install folder of Word 2011"),
            "problem: an install would fail: " + root_.root() +
                "/Bundle/Macros/2011/Tarvo.dotm: Failure.install; Cause.missingResource");
  EXPECT_EQ(diagnosis("install folder of Outlook 2011"), "missing: is not listed without it");
  fs::remove_all(root_.root() + "/Applications/O08");
  EXPECT_EQ(diagnosis("Word 2008"), "missing: is not listed");
  EXPECT_EQ(diagnosis("macro of Word 2008"), "nothing");
}

TEST_F(AddinVerbs, theDoctorSaysWhereARowAndTheDiskDiffer) {
  put(std::string(scripts) + "/b.scpt", "of the user");
  EXPECT_EQ(diagnosis("scripts of Mail"), "problem: installed in part, lacks a.scpt, sub");
  EXPECT_EQ(diagnosis("install folder of Mail"),
            "problem: an install would fail: " + root_.root() + scripts + "/b.scpt: Failure.install; Cause.exists");
  makeFolder(startup);
  startAndEnd();  // the rows are remembered, without the macro
  put(macro, "of the user");
  EXPECT_EQ(diagnosis("macro of Word 2011"),
            "problem: installed; the box was left off and goes on with the next start; Failure.check; Cause.foreign");
  startAndEnd();
  EXPECT_EQ(diagnosis("macro of Word 2011"), "problem: installed; Failure.check; Cause.foreign");
  put(macro, read("/Bundle/Macros/2011/Tarvo.dotm"));
  EXPECT_EQ(diagnosis("macro of Word 2011"), "ok: installed");
  fs::remove(root_.root() + macro);
  EXPECT_EQ(diagnosis("macro of Word 2011"),
            "problem: not installed; the box was left on and goes off with the next start");
}

TEST_F(AddinVerbs, theDoctorNamesEachInstalledFileThatIsNotTheProducts) {
  makeFolder(startup);
  EXPECT_EQ(run({"addin", "install", "Word 2011"}).status, 0);
  EXPECT_EQ(run({"addin", "install", "Mail"}).status, 0);
  EXPECT_EQ(diagnosis("script of Mail"), "nothing");
  put(macro, "");
  put(std::string(scripts) + "/b.scpt", "of the user");
  fs::remove(root_.root() + scripts + "/sub/c");
  EXPECT_EQ(diagnosis("macro of Word 2011"), "problem: installed; Failure.check; Cause.emptied");
  EXPECT_EQ(diagnosis("scripts of Mail"), "ok: installed");
  const std::string out = run({"doctor", "--json"}).out;
  const std::string place = R"("path":"home:/Library/Scripts/Applications/Mail/Tarvo/)",
                    rest = R"(,"state":"problem","what":"script of Mail"})";
  EXPECT_NE(out.find(R"({"cure":"","detail":"Failure.check; Cause.foreign",)" + place + "b.scpt\"" + rest),
            std::string::npos)
      << out;
  EXPECT_NE(out.find(R"("detail":"Failure.check; Cause.absent",)" + place + "sub/c\"" + rest), std::string::npos)
      << out;
}

}  // namespace
}  // namespace tarvo::test
