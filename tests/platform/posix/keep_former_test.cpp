// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "platform/posix/keep_former.h"
#include "platform/posix/replace_file.h"
#include "tests/platform/posix/recorded_calls.h"
#include "tests/support/temporary_folder.h"

// What becomes of a file that is replaced.
namespace tarvo::test {
namespace {

class KeepFormer : public testing::Test {
 protected:
  KeepFormer() { folder.write("file", "old"); }

  Keeping keeping(const std::string& name = "former") const {
    return {.folder = folder.at("Above/Kept"), .name = name, .expected = stamp(), .foreignName = "foreign"};
  }
  FileStamp stamp() const {
    struct stat status{};
    EXPECT_EQ(::stat((folder / "file").c_str(), &status), 0);
    return stampOf(status);
  }
  mode_t modeOf(const std::string& path) const {
    struct stat status{};
    EXPECT_EQ(::stat((folder / path).c_str(), &status), 0) << path;
    return status.st_mode & 07777;
  }
  std::vector<std::string> kept() const { return folder.names("Above/Kept"); }
  const TemporaryFolder folder;
};

using Names = std::vector<std::string>;

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

TEST_F(KeepFormer, aFileThatAnotherProgramWroteIsKeptUnderTheOtherName) {
  const Keeping asked = keeping();
  folder.write("file", "of somebody else");
  folder.makeFolder("Above/Kept");
  const RecordedCalls calls;
  const Result<Replaced> replaced = replaceFile(folder.at("file"), "new", asked);
  ASSERT_TRUE(replaced);
  EXPECT_TRUE(replaced->wasForeign);
  EXPECT_EQ(kept(), Names{"foreign"});
  EXPECT_EQ(folder.read("Above/Kept/foreign"), "of somebody else");
  const auto& names = calls.names();
  const auto renamed = std::ranges::find(names, "rename");
  EXPECT_EQ(std::count(names.begin(), renamed, "sync folder"), 0) << "the provisional name is ours alone";
  EXPECT_EQ(names.back(), "sync folder");
}

TEST_F(KeepFormer, withoutANameOnlyAnotherProgramsFileIsKept) {
  ASSERT_TRUE(replaceFile(folder.at("file"), "new", keeping("")));
  EXPECT_EQ(kept(), Names{});
  const Keeping asked = keeping("");
  folder.write("file", "of somebody else");
  ASSERT_TRUE(replaceFile(folder.at("file"), "newer", asked));
  EXPECT_EQ(kept(), Names{"foreign"});
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
