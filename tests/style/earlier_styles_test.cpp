// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/earlier_styles.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "platform/text/fingerprint.h"
#include "style/style_file.h"
#include "style/style_keys.h"
#include "tests/support/memory_files.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/tired_files.h"

namespace tarvo::test {
namespace {

using namespace std::chrono_literals;
using Names = std::vector<std::string>;

constexpr Moment noon = std::chrono::sys_days(std::chrono::January / 31 / 2026) + 12h + 5min + 7s + 42us;
const std::string someFingerprint = fingerprint("something");

Dictionary stylesNamed(const std::string& name) {
  Dictionary record, root;
  record.set(keyNameName, name);
  root.set(keyNameStyle, Array{record});
  return root;
}

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

class EarlierStylesTest : public testing::Test {
 protected:
  Dictionary read(const EarlierSet& set) {
    const Result<Dictionary> root = earlier.read(set);
    return root ? *root : Dictionary();
  }
  std::vector<ChangeKind> kinds() {
    std::vector<ChangeKind> kinds;
    for (const EarlierSet& set : earlier.list()) kinds.push_back(set.kind);
    return kinds;
  }
  void write(const std::string& name, std::optional<ChangeKind> kind = ChangeKind::edit) {
    now += 1s;
    file.allChanged();
    EXPECT_TRUE(file.write(stylesNamed(name), kind));
  }
  TemporaryFolder folder;
  Locations locations{folder.path(), folder.path()};
  PosixFiles files{locations};
  Moment now = noon;
  EarlierStyles earlier{files, folder.at("Earlier"), [this] { return now; }};
  StyleFile file{files, folder.at("styles.plist"), &earlier};
};

TEST_F(EarlierStylesTest, eachReplacedSetCanBeReadAgain) {
  for (const char* name : {"one", "two", "three"}) write(name);
  const auto sets = earlier.list();
  ASSERT_EQ(sets.size(), 2U);
  EXPECT_EQ(read(sets[0]), stylesNamed("two"));
  EXPECT_EQ(read(sets[1]), stylesNamed("one"));
}

TEST_F(EarlierStylesTest, theSameContentIsKeptOnceAtItsLaterTime) {
  for (const char* name : {"one", "two", "one", "two", "one"}) write(name);
  const auto sets = earlier.list();
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
  const auto sets = earlier.list();
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
  const auto sets = earlier.list();
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
  const auto sets = earlier.list();
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
  EXPECT_EQ(earlier.list().size(), 0U);
}

TEST_F(EarlierStylesTest, aWriteThatChangesNothingKeepsNothing) {
  write("one");
  write("one");
  EXPECT_EQ(earlier.list().size(), 0U);
}

TEST_F(EarlierStylesTest, whatAnotherProgramWroteIsKeptAsItsOwn) {
  write("one");
  folder.write("styles.plist", writePropertyList(stylesNamed("of another program")));
  EXPECT_TRUE(file.isChangedElsewhere());
  write("two", std::nullopt);
  EXPECT_TRUE(file.replaced().wasForeign);
  EXPECT_FALSE(file.isChangedElsewhere());
  const auto sets = earlier.list();
  ASSERT_EQ(sets.size(), 1U);
  EXPECT_EQ(sets[0].kind, ChangeKind::otherProgram);
  EXPECT_EQ(read(sets[0]), stylesNamed("of another program"));
}

TEST_F(EarlierStylesTest, whatCouldNotBeReadIsKeptBesideAndAmongTheEarlierOnes) {
  folder.write("styles.plist", "no property list");
  EXPECT_FALSE(file.read());
  write("one");
  EXPECT_EQ(kinds(), std::vector{ChangeKind::unreadable});
  EXPECT_EQ(folder.read("styles.plist.unreadable"), "no property list");
  write("two");
  EXPECT_EQ(kinds(), (std::vector{ChangeKind::edit, ChangeKind::unreadable}));
}

TEST_F(EarlierStylesTest, aDamagedSetIsNotBroughtBack) {
  write("one");
  write("two");
  const EarlierSet set = earlier.list().at(0);
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
  const auto sets = earlier.list();
  ASSERT_EQ(sets.size(), 2U);
  EXPECT_EQ(read(sets[0]), stylesNamed("two"));
}

TEST(UnreadableStyles, areReplacedOnlyOnceTheyAreKeptSomewhere) {
  MemoryFiles files;
  files.put("/styles.plist", "no property list");
  files.refuse(MemoryFiles::Operation::keepUnreadable);
  EarlierStyles earlier(files, DiskPath("/Earlier"));
  StyleFile with(files, DiskPath("/styles.plist"), &earlier), without(files, DiskPath("/styles.plist"));
  EXPECT_FALSE(without.read());
  EXPECT_FALSE(without.write(stylesNamed("one"), ChangeKind::edit));
  EXPECT_FALSE(with.read());
  EXPECT_TRUE(with.write(stylesNamed("one"), ChangeKind::edit));
  EXPECT_EQ(earlier.list().size(), 1U);
}

TEST(StylesOutOfReach, areTriedThreeTimes) {
  TiredFiles files;
  files.put("/styles.plist", writePropertyList(stylesNamed("one")));
  StyleFile file(files, DiskPath("/styles.plist"));
  EXPECT_TRUE(file.read());
  files.reads = 0;
  files.readsUntilDone = 4;
  EXPECT_FALSE(file.read());
  EXPECT_EQ(files.reads, 3);
}

TEST(StylesOutOfReach, areNotTriedAgainWhereThatCannotHelp) {
  TiredFiles files;
  files.cause = std::errc::no_such_file_or_directory;
  StyleFile file(files, DiskPath("/styles.plist"));
  EXPECT_FALSE(file.read());
  EXPECT_EQ(files.reads, 1);
}

TEST_F(EarlierStylesTest, thinningRemovesOnlyWhatIsSuperfluous) {
  write("one");
  write("two");
  folder.write("Earlier/notes.txt", "of the user");
  folder.write("Earlier/" + fileNameOf(noon - std::chrono::years(2), ChangeKind::edit, someFingerprint), "old");
  earlier.thin();
  EXPECT_EQ(earlier.list().size(), 1U);
  EXPECT_EQ(folder.read("Earlier/notes.txt"), "of the user");
}

}  // namespace
}  // namespace tarvo::test
