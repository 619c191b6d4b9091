// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "platform/services/plist_file.h"
#include "platform/text/fingerprint.h"
#include "style/style_keys.h"
#include "tests/support/faulty_files.h"
#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

// What the program does about the former styles beside an edit, and when.
namespace tarvo::test {
namespace {

// The disk, with a list of what was asked of the style file.
class AskedFiles : public FaultyFiles {
 public:
  using FaultyFiles::FaultyFiles;
  Result<Kind> kind(const DiskPath& path) const override { return asked("kind", path), FaultyFiles::kind(path); }
  Result<FileStamp> stamp(const DiskPath& path) const override {
    return asked("stamp", path), FaultyFiles::stamp(path);
  }
  Result<std::string> read(const DiskPath& path) const override { return asked("read", path), FaultyFiles::read(path); }
  Result<Replaced> replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) override {
    asked("replace", path);
    Result<Replaced> replaced = FaultyFiles::replace(path, bytes, keeping);
    if (replaced && !keeping.folder.empty()) replaced->unkept = unkept;
    return replaced;
  }
  mutable Log log;
  std::optional<Failure> unkept;  // what becomes of former styles

 private:
  void asked(const char* what, const DiskPath& path) const {
    if (path.text().ends_with(TestProgram::stylePath)) log.emplace_back(what);
  }
};

class StyleNewsTest : public testing::Test {
 protected:
  StyleNewsTest() {
    test.writeStyles(sampleRoot());
    test.runLoop.holds = true;
    EXPECT_TRUE(program.start());
    test.runLoop.run();
    files.log.clear();
  }
  ~StyleNewsTest() override { test.runLoop.run(); }
  void edit(int option) { program.interface().options.indexPopups[0].userChoose(option); }
  const Notice* shown() { return program.rooms().notices.shown(); }
  void writeElsewhere() {
    Dictionary root = sampleRoot();
    root.set("Elsewhere", 1);
    test.writeStyles(root);
  }
  TestProgram test;
  AskedFiles files{test.product->files()};
  Program program{test.product->services(files, test.engine, test.runLoop, test.panels, test.host, test.workspace)};
};

TEST_F(StyleNewsTest, oldSetsAreLetGoOfBetweenTheEditsAndNeverInsideOne) {
  const std::string earlier = test.inHome(std::string(gEarlierStyles));
  const std::string old = fileNameOf(Moment(std::chrono::hours(1)), ChangeKind::edit, "");
  test.root.write(earlier + "/" + old, std::string(largestListFile + 1, ' '));
  for (int edits = 0; test.runLoop.posted() == 0; ++edits) {
    ASSERT_LT(edits, 100);
    edit(edits % 3);
    EXPECT_EQ(test.root.names(earlier).front(), old);
  }
  test.runLoop.run();
  EXPECT_NE(test.root.names(earlier).front(), old);
}

TEST_F(StyleNewsTest, whoComesBackToTheWindowLooksOnceAndIsOnlyTold) {
  program.rooms().news.look();
  EXPECT_EQ(files.log, Log{"stamp"});
  EXPECT_EQ(shown(), nullptr);
  writeElsewhere();
  files.log.clear();
  program.rooms().news.look();
  program.rooms().news.look();
  EXPECT_EQ(files.log, (Log{"stamp", "stamp"}));
  ASSERT_NE(shown(), nullptr);
  EXPECT_EQ(shown()->text, "Notice.foreign");
  EXPECT_EQ(shown()->offer, Notice::Offer::merge);
  EXPECT_EQ(test.stylesOnDisk().find("Elsewhere")->integerValue(), 1);
}

TEST_F(StyleNewsTest, formerStylesThatCannotBeKeptAreToldOnceForEachCause) {
  const auto& latest = program.rooms().notices.latest();
  const auto isOfTheKeeping = [](const Notice& notice) { return notice.text == "Notice.unsure"; };
  for (const std::errc cause : {std::errc::io_error, std::errc::no_space_on_device}) {
    files.unkept = Failure{"/styles", Attempt::keep, std::make_error_code(cause)};
    for (const int option : {2, 1}) edit(option);
  }
  EXPECT_EQ(std::ranges::count_if(latest, isOfTheKeeping), 2);
}

TEST_F(StyleNewsTest, aStyleFileThatWasTakenAwayIsToldOnceAndTheNextChangePutsItBack) {
  const std::string path = test.root / test.inHome(TestProgram::stylePath);
  std::filesystem::remove(path);
  program.rooms().news.look();
  ASSERT_NE(shown(), nullptr);
  EXPECT_EQ(shown()->text, "Notice.gone");
  EXPECT_EQ(shown()->offer, Notice::Offer::none) << "what is shown is the latest there is";
  program.rooms().notices.dismiss();
  program.rooms().news.look();
  EXPECT_EQ(shown(), nullptr) << "told already";
  edit(2);
  EXPECT_TRUE(std::ranges::any_of(program.rooms().notices.latest(),
                                  [](const Notice& notice) { return notice.text == "Notice.storedAgain"; }));
  EXPECT_TRUE(std::filesystem::exists(path));
  std::filesystem::remove(path);
  program.rooms().news.look();
  EXPECT_EQ(shown()->text, "Notice.gone") << "taken away again";
}

TEST_F(StyleNewsTest, whatAnotherProgramWroteGetsItsFingerprintSoon) {
  edit(2);
  test.runLoop.run();
  writeElsewhere();
  const std::string theirs = test.root.read(test.inHome(TestProgram::stylePath));
  edit(1);
  test.runLoop.run();
  const std::string earlier = test.inHome(std::string(gEarlierStyles));
  EXPECT_TRUE(std::ranges::any_of(test.root.names(earlier), [&](const std::string& name) {
    return name.ends_with(" other " + fingerprint(theirs) + ".plist");
  }));
}

}  // namespace
}  // namespace tarvo::test
