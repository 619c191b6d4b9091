// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <cerrno>

#include "tests/platform/posix/keep_former_fixture.h"
#include "tests/platform/posix/recorded_calls.h"

// What becomes of a file that another program wrote when it is replaced.
namespace tarvo::test {
namespace {

class KeepForeign : public KeepFormer {};

TEST_F(KeepForeign, aFileThatAnotherProgramWroteIsKeptUnderTheOtherName) {
  const Keeping asked = keeping();
  folder.write("file", "of somebody else");
  folder.makeFolder("Above/Kept");
  const RecordedCalls calls;
  const Result<Replaced> replaced = replaceFile(folder.at("file"), "new", asked);
  ASSERT_TRUE(replaced);
  EXPECT_TRUE(replaced->wasForeign);
  EXPECT_EQ(replaced->beside, "");
  EXPECT_EQ(kept(), Names{"foreign"});
  EXPECT_EQ(folder.read("Above/Kept/foreign"), "of somebody else");
  EXPECT_EQ(calls.names(),
            (Names{"mode", "write", "sync file", "link", "sync file", "sync folder", "rename", "sync folder"}))
      << "not even for a moment it bears a name that tells of other bytes";
}

TEST_F(KeepForeign, withoutANameOnlyAnotherProgramsFileIsKept) {
  ASSERT_TRUE(replaceFile(folder.at("file"), "new", keeping("")));
  EXPECT_EQ(kept(), Names{});
  const Keeping asked = keeping("");
  folder.write("file", "of somebody else");
  ASSERT_TRUE(replaceFile(folder.at("file"), "newer", asked));
  EXPECT_EQ(kept(), Names{"foreign"});
}

TEST_F(KeepForeign, whereNoFileWasKnownWhateverIsThereIsAnotherPrograms) {
  Keeping asked = keeping();
  asked.expected = std::nullopt;
  const Result<Replaced> replaced = replaceFile(folder.at("file"), "new", asked);
  ASSERT_TRUE(replaced);
  EXPECT_TRUE(replaced->wasForeign);
  EXPECT_EQ(kept(), Names{"foreign"});
}

TEST_F(KeepForeign, anotherProgramsFileIsKeptBesideWhereTheFolderCannotHaveIt) {
  const Keeping asked = keeping();
  folder.write("Above", "no folder");
  for (const char* theirs : {"theirs", "theirs once more"}) {
    folder.write("file", theirs);
    const Result<Replaced> replaced = replaceFile(folder.at("file"), "new", asked);
    ASSERT_TRUE(replaced);
    EXPECT_TRUE(replaced->wasForeign);
    EXPECT_EQ(replaced->kept, "");
    EXPECT_EQ(folder.read(DiskPath(replaced->beside).name()), theirs);
    EXPECT_EQ(folder.read("file"), "new");
  }
}

TEST_F(KeepForeign, anotherProgramsFileThatCanBeKeptNowhereIsNotReplaced) {
  const Keeping asked = keeping();
  folder.write("Above", "no folder");
  folder.write("file", "theirs");
  RecordedCalls calls;
  calls.fail("link", EIO);
  calls.fail("copy", EIO);
  calls.fail("sync folder", EIO);
  const Result<Replaced> replaced = replaceFile(folder.at("file"), "new", asked);
  ASSERT_FALSE(replaced);
  EXPECT_EQ(replaced.error().attempt, Attempt::keep);
  EXPECT_EQ(folder.read("file"), "theirs");
}

TEST_F(KeepForeign, anotherProgramsFileWhoseLinkCouldNotBeSyncedIsKeptBesideToo) {
  const Keeping asked = keeping();
  folder.write("file", "theirs");
  folder.makeFolder("Above/Kept");
  RecordedCalls calls;
  calls.failAt(4, EIO);  // the sync of the link
  const Result<Replaced> replaced = replaceFile(folder.at("file"), "new", asked);
  ASSERT_TRUE(calls.hasFailed());
  ASSERT_TRUE(replaced);
  EXPECT_EQ(folder.read("Above/Kept/foreign"), "theirs");
  EXPECT_EQ(folder.read("file.other"), "theirs");
  EXPECT_EQ(folder.read("file"), "new");
}

}  // namespace
}  // namespace tarvo::test
