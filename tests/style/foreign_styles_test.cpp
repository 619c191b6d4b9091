// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <sys/stat.h>
#include <unistd.h>

#include <functional>

#include "tests/style/earlier_styles_fixture.h"
#include "tests/support/memory_files.h"
#include "tests/support/tired_files.h"

// Styles that nobody could read and styles of another program, when they are replaced.
namespace tarvo::test {
namespace {

class ForeignStyles : public EarlierStylesTest {
 protected:
  void writeElsewhere(const std::string& name) { folder.write("styles.plist", writePropertyList(stylesNamed(name))); }
};

TEST_F(ForeignStyles, whatAnotherProgramWroteIsKeptAsItsOwn) {
  write("one");
  folder.write("styles.plist", writePropertyList(stylesNamed("of another program")));
  EXPECT_EQ(file.standing(), StandingOfFile::changed);
  write("two", std::nullopt);
  EXPECT_TRUE(file.replaced().wasForeign);
  EXPECT_EQ(file.standing(), StandingOfFile::ours);
  const auto sets = this->sets();
  ASSERT_EQ(sets.size(), 1U);
  EXPECT_EQ(sets[0].kind, ChangeKind::otherProgram);
  EXPECT_EQ(read(sets[0]), stylesNamed("of another program"));
}

TEST_F(ForeignStyles, whatCouldNotBeReadIsKeptBesideAndAmongTheEarlierOnes) {
  folder.write("styles.plist", "no property list");
  EXPECT_FALSE(file.read());
  write("one");
  EXPECT_EQ(kinds(), std::vector{ChangeKind::unreadable});
  EXPECT_EQ(folder.read("styles.plist.unreadable"), "no property list");
  write("two");
  EXPECT_EQ(kinds(), (std::vector{ChangeKind::edit, ChangeKind::unreadable}));
}

TEST_F(ForeignStyles, whatAppearsWhereNoFileWasIsAnotherPrograms) {
  EXPECT_FALSE(file.read());
  EXPECT_EQ(file.standing(), StandingOfFile::ours);
  writeElsewhere("of another program");
  EXPECT_EQ(file.standing(), StandingOfFile::changed);
  write("one");
  EXPECT_TRUE(file.replaced().wasForeign);
  EXPECT_EQ(kinds(), std::vector{ChangeKind::otherProgram});
  EXPECT_EQ(read(sets().at(0)), stylesNamed("of another program"));
}

TEST_F(ForeignStyles, aFileThatWasMendedMeanwhileIsNoUnreadableOne) {
  folder.write("styles.plist", "no property list");
  EXPECT_FALSE(file.read());
  writeElsewhere("mended");
  EXPECT_EQ(file.standing(), StandingOfFile::changed);
  write("one");
  EXPECT_EQ(kinds(), std::vector{ChangeKind::otherProgram});
  EXPECT_EQ(folder.names(""), (Names{"Earlier", "styles.plist"}));
}

TEST_F(ForeignStyles, whatNobodyMayReadIsAmongTheEarlierOnes) {
  folder.write("styles.plist", "secret");
  ASSERT_EQ(::chmod((folder / "styles.plist").c_str(), 0), 0);
  if (file.read() || ::access((folder / "styles.plist").c_str(), R_OK) == 0) GTEST_SKIP() << "this user may read all";
  write("one");
  EXPECT_EQ(kinds(), std::vector{ChangeKind::unreadable});
}

TEST_F(ForeignStyles, getTheirFingerprintWhenTheSetsAreThinnedAndAreKeptOnce) {
  write("one");
  for (const char* name : {"two", "three"}) {
    writeElsewhere("of another program");
    write(name);
  }
  ASSERT_EQ(sets().size(), 2U);
  EXPECT_EQ(sets().at(0).fingerprint, "");
  const std::string later = sets().at(0).id;
  earlier.thin();
  ASSERT_EQ(sets().size(), 1U);
  const EarlierSet set = sets().at(0);
  EXPECT_EQ(set.id, later);
  EXPECT_EQ(set.fingerprint, fingerprint(writePropertyList(stylesNamed("of another program"))));
  folder.write("Earlier/" + set.path.name(), writePropertyList(stylesNamed("forged")));
  EXPECT_EQ(earlier.read(set).error().cause, Reason::damaged);
}

// A disk on which another program replaces the file while it is read.
class BusyFiles : public MemoryFiles {
 public:
  Result<std::string> read(const DiskPath& path) const override {
    Result<std::string> bytes = MemoryFiles::read(path);
    if (replacements-- > 0) replacement();
    return bytes;
  }
  mutable int replacements = 0;
  std::function<void()> replacement;
};

class StylesReplacedMeanwhile : public testing::Test {
 protected:
  void put(const std::string& name) {
    EXPECT_TRUE(files.replace(DiskPath("/styles.plist"), writePropertyList(stylesNamed(name)), {}));
  }
  StylesReplacedMeanwhile() {
    put("former");
    files.replacement = [this] { put("theirs"); };
  }
  BusyFiles files;
  EarlierStyles earlier{files, DiskPath("/Earlier")};
  StyleFile file{files, DiskPath("/styles.plist"), &earlier};
};

TEST_F(StylesReplacedMeanwhile, areReadAnew) {
  files.replacements = 1;
  const Result<Dictionary> root = file.read();
  ASSERT_TRUE(root);
  EXPECT_EQ(*root, stylesNamed("theirs"));
  EXPECT_EQ(file.standing(), StandingOfFile::ours);
}

TEST_F(StylesReplacedMeanwhile, againAndAgainAreKeptAsAnotherPrograms) {
  files.replacements = 100;
  EXPECT_TRUE(file.read());
  EXPECT_EQ(file.standing(), StandingOfFile::changed);
  EXPECT_TRUE(file.write(stylesNamed("one"), ChangeKind::edit));
  EXPECT_TRUE(file.replaced().wasForeign);
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
  EXPECT_EQ(earlier.list()->size(), 1U);
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

}  // namespace
}  // namespace tarvo::test
