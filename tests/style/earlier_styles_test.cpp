// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "platform/services/plist_file.h"
#include "tests/style/earlier_styles_fixture.h"

namespace tarvo::test {
namespace {

const std::string someFingerprint = fingerprint("something");

TEST(EarlierSets, tellTimeKindAndContentByTheirNames) {
  EXPECT_EQ(fileNameOf(noon, ChangeKind::import, someFingerprint),
            "20260131T120507.000042Z import " + someFingerprint + ".plist");
  const auto set = earlierSetNamed(fileNameOf(noon, ChangeKind::otherProgram, ""));
  ASSERT_TRUE(set);
  EXPECT_EQ(set->id, "20260131T120507.000042Z");
  EXPECT_EQ(set->time, noon);
  EXPECT_EQ(set->kind, ChangeKind::otherProgram);
  EXPECT_EQ(set->fingerprint, "");
}

TEST(EarlierSets, otherFilesAreLeftAlone) {
  for (const char* name :
       {"notes.plist", "20260131T120507.000042Z import", "20260131T120507.000042Z lunch -.plist",
        "20261331T120507.000042Z edit -.plist", "20260131T240507.000042Z edit -.plist",
        "20260131T120507.000042Z edit 12.plist", "20260131T120507.000042Z edit  -.plist", ".plist"}) {
    EXPECT_EQ(earlierSetNamed(name), std::nullopt) << name;
  }
}

TEST_F(EarlierStylesTest, eachReplacedSetCanBeReadAgain) {
  for (const char* name : {"one", "two", "three"}) write(name);
  const auto sets = this->sets();
  ASSERT_EQ(sets.size(), 2U);
  EXPECT_EQ(read(sets[0]), stylesNamed("two"));
  EXPECT_EQ(read(sets[1]), stylesNamed("one"));
}

TEST_F(EarlierStylesTest, theSameContentIsKeptOnceAtItsLaterTime) {
  for (const char* name : {"one", "two", "one", "two", "one"}) write(name);
  const auto sets = this->sets();
  ASSERT_EQ(sets.size(), 2U);
  EXPECT_EQ(read(sets[0]), stylesNamed("two"));
  EXPECT_EQ(sets[0].time, noon + 5s);
  EXPECT_EQ(read(sets[1]), stylesNamed("one"));
}

TEST_F(EarlierStylesTest, whatLastsStaysWhenAnEditMeetsTheSameContent) {
  write("one");
  write("two", ChangeKind::import);
  write("one");
  write("three");
  const auto sets = this->sets();
  ASSERT_EQ(sets.size(), 2U);
  EXPECT_EQ(read(sets[0]), stylesNamed("one"));
  EXPECT_EQ(sets[0].kind, ChangeKind::import);
  EXPECT_EQ(sets[0].time, noon + 4s);
}

TEST_F(EarlierStylesTest, theSameContentIsKeptOnceOverRuns) {
  write("one");
  for (const char* name : {"two", "one", "two", "one"}) {
    EarlierStyles another(files, folder.at("Earlier"), [this] { return now; });
    StyleFile ofAnother(files, folder.at("styles.plist"), &another);
    now += 1s;
    EXPECT_TRUE(ofAnother.read());
    EXPECT_TRUE(ofAnother.write(stylesNamed(name), ChangeKind::edit));
  }
  const auto sets = this->sets();
  ASSERT_EQ(sets.size(), 2U);
  EXPECT_EQ(read(sets[0]), stylesNamed("two"));
  EXPECT_EQ(read(sets[1]), stylesNamed("one"));
}

TEST_F(EarlierStylesTest, setsKeptAfterTheClockWasSetBackStillStandInTheirOrder) {
  write("one");
  write("two");
  now -= std::chrono::years(3);
  EarlierStyles another(files, folder.at("Earlier"), [this] { return now; });
  StyleFile ofAnother(files, folder.at("styles.plist"), &another);
  EXPECT_TRUE(ofAnother.read());
  for (const char* name : {"three", "four"}) {
    ofAnother.allChanged();
    EXPECT_TRUE(ofAnother.write(stylesNamed(name), ChangeKind::edit));
  }
  const auto sets = this->sets();
  ASSERT_EQ(sets.size(), 3U);
  EXPECT_EQ(read(sets[0]), stylesNamed("three"));
  EXPECT_EQ(read(sets[1]), stylesNamed("two"));
  EXPECT_EQ(read(sets[2]), stylesNamed("one"));
}

TEST_F(EarlierStylesTest, whereLinksAreRefusedEditsAreCopiedOnceAMinuteOverRuns) {
  const auto mayCopy = [this] {
    EarlierStyles another(files, folder.at("Earlier"), [this] { return now; });
    return another.keepingFor(ChangeKind::edit, someFingerprint, std::nullopt).mayCopy;
  };
  write("one");
  EXPECT_TRUE(mayCopy());
  write("two");
  now += 59s;
  EXPECT_FALSE(mayCopy());
  now += 1s;
  EXPECT_TRUE(mayCopy());
}

TEST_F(EarlierStylesTest, aChoiceOfStylesForToolsKeepsNothing) {
  write("one");
  write("two", std::nullopt);
  EXPECT_EQ(sets().size(), 0U);
}

TEST_F(EarlierStylesTest, aWriteThatChangesNothingKeepsNothing) {
  write("one");
  write("one");
  EXPECT_EQ(sets().size(), 0U);
}

TEST_F(EarlierStylesTest, aDamagedSetIsNotBroughtBack) {
  write("one");
  write("two");
  const EarlierSet set = sets().at(0);
  folder.write("Earlier/" + set.path.name(), writePropertyList(stylesNamed("forged")));
  const Result<Dictionary> root = earlier.read(set);
  ASSERT_FALSE(root);
  EXPECT_EQ(root.error().cause, Reason::damaged);
}

TEST_F(EarlierStylesTest, setsKeptAtOnceStandInTheirOrder) {
  for (const char* name : {"one", "two", "three"}) {
    file.allChanged();
    EXPECT_TRUE(file.write(stylesNamed(name), ChangeKind::edit));
  }
  const auto sets = this->sets();
  ASSERT_EQ(sets.size(), 2U);
  EXPECT_EQ(read(sets[0]), stylesNamed("two"));
}

TEST_F(EarlierStylesTest, setsThatCannotBeListedAreNoEmptyHistory) {
  EXPECT_EQ(sets().size(), 0U);
  folder.write("Earlier", "no folder");
  const Result<std::vector<EarlierSet>> listed = earlier.list();
  ASSERT_FALSE(listed);
  EXPECT_EQ(listed.error().path, folder / "Earlier");
  EXPECT_EQ(listed.error().attempt, Attempt::list);
}

TEST_F(EarlierStylesTest, aSetOfAnUnheardOfSizeIsNotTakenIntoMemory) {
  write("one");
  write("two");
  const EarlierSet set = sets().at(0);
  std::filesystem::resize_file(set.path.text(), largestListFile + 1);
  EXPECT_EQ(earlier.read(set).error().cause, Reason::overLimit);
}

TEST_F(EarlierStylesTest, thinningRemovesOnlyWhatIsSuperfluous) {
  write("one");
  write("two");
  folder.write("Earlier/notes.txt", "of the user");
  folder.write("Earlier/" + fileNameOf(noon - std::chrono::years(2), ChangeKind::edit, someFingerprint), "old");
  earlier.thin();
  EXPECT_EQ(sets().size(), 1U);
  EXPECT_EQ(folder.read("Earlier/notes.txt"), "of the user");
}

}  // namespace
}  // namespace tarvo::test
