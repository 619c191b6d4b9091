// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "tests/platform/posix/keep_former_fixture.h"
#include "tests/platform/posix/recorded_calls.h"

// What becomes of a file that is replaced.
namespace tarvo::test {
namespace {

TEST_F(KeepFormer, theFileThatGoesIsLinkedInAFolderOfItsOwnersAlone) {
  struct stat before{}, after{};
  ASSERT_EQ(::stat((folder / "file").c_str(), &before), 0);
  const Result<Replaced> replaced = replaceFile(folder.at("file"), "new", keeping());
  ASSERT_TRUE(replaced);
  EXPECT_EQ(replaced->kept, "former");
  EXPECT_FALSE(replaced->wasForeign);
  EXPECT_EQ(folder.read("file"), "new");
  EXPECT_EQ(folder.read("Above/Kept/former"), "old");
  ASSERT_EQ(::stat((folder / "Above/Kept/former").c_str(), &after), 0);
  EXPECT_EQ(after.st_ino, before.st_ino);
  EXPECT_EQ(modeOf("Above/Kept"), 0700U);
  EXPECT_EQ(modeOf("Above"), 0777U);
}

TEST_F(KeepFormer, theStampIsThatOfTheFileThatStandsThere) {
  const Result<Replaced> first = replaceFile(folder.at("file"), "new", keeping());
  ASSERT_TRUE(first);
  EXPECT_EQ(first->now, stamp());
}

TEST_F(KeepFormer, aNewFileHasNoFormerOne) {
  const Result<Replaced> replaced = replaceFile(folder.at("other"), "new", keeping());
  ASSERT_TRUE(replaced);
  EXPECT_EQ(replaced->kept, "");
  EXPECT_EQ(replaced->unkept, std::nullopt);
}

TEST_F(KeepFormer, whatMustLastIsOnTheDiskBeforeTheFileIsReplaced) {
  Keeping asked = keeping();
  asked.durability = Durability::synced;
  folder.makeFolder("Above/Kept");
  const RecordedCalls calls;
  ASSERT_TRUE(replaceFile(folder.at("file"), "new", asked));
  EXPECT_EQ(calls.names(),
            (Names{"mode", "write", "sync file", "link", "sync file", "sync folder", "rename", "sync folder"}));
}

TEST_F(KeepFormer, anEditIsNotHeldUpByASync) {
  ASSERT_TRUE(replaceFile(folder.at("file"), "new", keeping()));  // makes the folder
  const RecordedCalls calls;
  ASSERT_TRUE(replaceFile(folder.at("file"), "newer", keeping("second")));
  EXPECT_EQ(calls.names(), (Names{"mode", "write", "sync file", "link", "rename", "sync folder"}));
}

TEST_F(KeepFormer, aPlaceThatCannotBeMadeIsToldAndTheFileIsReplaced) {
  folder.write("Above", "no folder");
  const Result<Replaced> replaced = replaceFile(folder.at("file"), "new", keeping());
  ASSERT_TRUE(replaced);
  ASSERT_TRUE(replaced->unkept);
  EXPECT_EQ(replaced->unkept->path, folder / "Above/Kept");
  EXPECT_EQ(folder.read("file"), "new");
}

TEST_F(KeepFormer, nothingIsReplacedWhereTheFormerFileMustBeKeptAndCannot) {
  folder.write("Above", "no folder");
  Keeping asked = keeping();
  asked.durability = Durability::sure;
  EXPECT_FALSE(replaceFile(folder.at("file"), "new", asked));
  EXPECT_EQ(folder.read("file"), "old");
  EXPECT_EQ(folder.names(""), (Names{"Above", "file"}));
}

TEST_F(KeepFormer, aLinkThatCouldNotBeSyncedStaysAndIsTold) {
  Keeping asked = keeping();
  asked.durability = Durability::synced;
  folder.makeFolder("Above/Kept");
  RecordedCalls calls;
  calls.failAt(4, EIO);  // the sync of the link, after mode, write, sync file and link
  const Result<Replaced> replaced = replaceFile(folder.at("file"), "new", asked);
  ASSERT_TRUE(calls.hasFailed());
  ASSERT_TRUE(replaced);
  ASSERT_TRUE(replaced->unkept);
  EXPECT_EQ(replaced->unkept->cause, std::errc::io_error);
  EXPECT_EQ(replaced->kept, "former");
  EXPECT_EQ(folder.read("Above/Kept/former"), "old");
}

TEST_F(KeepFormer, aFailedRenameTakesTheLinkBack) {
  folder.makeFolder("Above/Kept");
  for (const Durability durability : {Durability::quick, Durability::synced}) {
    Keeping asked = keeping();
    asked.durability = durability;
    RecordedCalls calls;
    calls.fail("rename", EIO);
    EXPECT_FALSE(replaceFile(folder.at("file"), "new", asked));
    EXPECT_EQ(kept(), Names{});
    EXPECT_EQ(folder.names(""), (Names{"Above", "file"}));
    EXPECT_EQ(folder.read("file"), "old");
  }
}

TEST_F(KeepFormer, whereNoLinkIsTakenACopyGetsItsNameWhenItIsWhole) {
  folder.makeFolder("Above/Kept");
  RecordedCalls calls;
  calls.fail("link", EPERM);
  ASSERT_TRUE(replaceFile(folder.at("file"), "new", keeping()));
  EXPECT_EQ(calls.names(),
            (Names{"mode", "write", "sync file", "link", "write", "rename if free", "rename", "sync folder"}));
  EXPECT_EQ(kept(), Names{"former"});
  EXPECT_EQ(folder.read("Above/Kept/former"), "old");
}

TEST_F(KeepFormer, aCopyThatCannotHaveItsNameLeavesNothing) {
  folder.makeFolder("Above/Kept");
  RecordedCalls calls;
  calls.fail("link", EPERM);
  calls.fail("rename if free", EIO);
  const Result<Replaced> replaced = replaceFile(folder.at("file"), "new", keeping());
  ASSERT_TRUE(replaced);
  ASSERT_TRUE(replaced->unkept);
  EXPECT_EQ(replaced->unkept->cause, std::errc::io_error);
  EXPECT_EQ(replaced->kept, "");
  EXPECT_EQ(kept(), Names{});
}

TEST_F(KeepFormer, aFileThatNobodyMayReadIsLinkedAllTheSame) {
  ASSERT_EQ(::chmod((folder / "file").c_str(), 0), 0);
  Keeping asked = keeping();
  asked.durability = Durability::sure;
  ASSERT_TRUE(replaceFile(folder.at("file"), "new", asked));
  EXPECT_EQ(kept(), Names{"former"});
  EXPECT_EQ(modeOf("Above/Kept/former"), 0U);
}

TEST_F(KeepFormer, whatIsReplacedBehindALinkIsWhatTheLinkLeadsTo) {
  ASSERT_EQ(::symlink("file", (folder / "link").c_str()), 0);
  ASSERT_TRUE(replaceFile(folder.at("link"), "new", keeping()));
  EXPECT_EQ(folder.read("Above/Kept/former"), "old");
  EXPECT_EQ(folder.read("file"), "new");
}

TEST_F(KeepFormer, noLinkIsFollowedInThePlaceOfTheFolder) {
  folder.makeFolder("Above");
  folder.makeFolder("Elsewhere");
  ASSERT_EQ(::symlink("../Elsewhere", (folder / "Above/Kept").c_str()), 0);
  const Result<Replaced> replaced = replaceFile(folder.at("file"), "new", keeping());
  ASSERT_TRUE(replaced);
  EXPECT_TRUE(replaced->unkept);
  EXPECT_EQ(folder.names("Elsewhere"), Names{});
}

TEST_F(KeepFormer, somebodyElsesLinkIsNotFollowed) {
  ASSERT_EQ(::symlink("file", (folder / "link").c_str()), 0);
  if (::lchown((folder / "link").c_str(), 12345, 12345) != 0) GTEST_SKIP() << "only root may give links away";
  const Result<Replaced> replaced = replaceFile(folder.at("link"), "new");
  ASSERT_FALSE(replaced);
  EXPECT_EQ(replaced.error().cause, Reason::foreignLink);
  EXPECT_EQ(folder.read("file"), "old");
}

}  // namespace
}  // namespace tarvo::test
