// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/replace_file.h"
#include "tests/platform/posix/recorded_calls.h"
#include "tests/support/temporary_folder.h"

// What no look at the disk afterwards can tell: that the bytes are on it before the name is, and who could run the
// file.
namespace tarvo::test {
namespace {

using Calls = std::vector<std::string>;

class ReplaceFileCalls : public testing::Test {
 protected:
  // A file of somebody else, with every bit of its mode that gives its owner's or group's rights away.
  bool makeForeign() {
    folder.write("file", "old");
    return ::chown((folder / "file").c_str(), 12345, 23456) == 0 && ::chmod((folder / "file").c_str(), 06755) == 0;
  }
  mode_t modeAfterReplacing() {
    EXPECT_TRUE(replaceFile(folder.at("file"), "new"));
    struct stat status{};
    EXPECT_EQ(::stat((folder / "file").c_str(), &status), 0);
    return status.st_mode & 07777;
  }
  const TemporaryFolder folder;
};

TEST_F(ReplaceFileCalls, aNewFileIsOnTheDiskBeforeItHasItsName) {
  const RecordedCalls calls;
  EXPECT_TRUE(replaceFile(folder.at("file"), "new"));
  EXPECT_EQ(calls.names(), (Calls{"write", "sync file", "rename", "sync folder"}));
}

TEST_F(ReplaceFileCalls, aReplacedFileHasItsModeBeforeItsBytes) {
  folder.write("file", "old");
  const RecordedCalls calls;
  EXPECT_TRUE(replaceFile(folder.at("file"), "new"));
  EXPECT_EQ(calls.names(), (Calls{"mode", "write", "sync file", "rename", "sync folder"}));
}

TEST_F(ReplaceFileCalls, bytesThatDidNotReachTheDiskReplaceNothing) {
  folder.write("file", "old");
  RecordedCalls calls;
  calls.fail("sync file", EIO);
  EXPECT_FALSE(replaceFile(folder.at("file"), "new"));
  EXPECT_EQ(calls.names(), (Calls{"mode", "write", "sync file"}));
  EXPECT_EQ(folder.read("file"), "old");
  EXPECT_EQ(folder.names(""), std::vector<std::string>{"file"});
}

TEST_F(ReplaceFileCalls, aNameThatMayNotLastIsTold) {
  for (const int cause : {EIO, ENOSPC}) {
    RecordedCalls calls;
    calls.fail("sync folder", cause);
    const Result<Replaced> replaced = replaceFile(folder.at("file"), "new");
    ASSERT_TRUE(replaced && replaced->unsynced);
    EXPECT_EQ(replaced->unsynced->cause.value(), cause);
  }
  RecordedCalls calls;
  calls.fail("sync folder", EINVAL);
  const Result<Replaced> replaced = replaceFile(folder.at("file"), "new");
  EXPECT_TRUE(replaced && !replaced->unsynced) << "some disks cannot";
}

TEST_F(ReplaceFileCalls, aFileThatKeepsItsOwnerKeepsItsRights) {
  if (!makeForeign()) GTEST_SKIP() << "only root may give files away";
  EXPECT_EQ(modeAfterReplacing(), 06755U);
}

TEST_F(ReplaceFileCalls, aFileThatKeepsItsGroupAloneDoesNotRunAsItsOwner) {
  if (!makeForeign()) GTEST_SKIP() << "only root may give files away";
  RecordedCalls calls;
  calls.refuseOwner();
  EXPECT_EQ(modeAfterReplacing(), 02755U);
}

TEST_F(ReplaceFileCalls, aFileOfAnotherOwnerAndGroupRunsAsNeither) {
  if (!makeForeign()) GTEST_SKIP() << "only root may give files away";
  RecordedCalls calls;
  calls.refuseGroup();
  EXPECT_EQ(modeAfterReplacing(), 0755U);
}

}  // namespace
}  // namespace tarvo::test
