// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/keep_beside.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>

#include "platform/posix/replace_file.h"
#include "tests/platform/posix/recorded_calls.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {
namespace fs = std::filesystem;

using Names = std::vector<std::string>;

class KeepUnreadable : public testing::Test {
 protected:
  Result<DiskPath> keep(const char* name) { return keepBeside(folder.at(name), ".unreadable"); }
  test::TemporaryFolder folder;
};

TEST_F(KeepUnreadable, fiveAreKeptAndTheFifthIsReplaced) {
  for (int number = 1; number <= 7; ++number) {
    ASSERT_TRUE(replaceFile(folder.at("s.plist"), std::to_string(number)));
    EXPECT_TRUE(keep("s.plist"));
  }
  EXPECT_EQ(folder.names(), (Names{"s.plist", "s.plist.unreadable", "s.plist.unreadable.2", "s.plist.unreadable.3",
                                   "s.plist.unreadable.4", "s.plist.unreadable.5"}));
  EXPECT_EQ(folder.read("s.plist.unreadable"), "1");
  EXPECT_EQ(folder.read("s.plist.unreadable.4"), "4");
  EXPECT_EQ(folder.read("s.plist.unreadable.5"), "7");
}

TEST_F(KeepUnreadable, theKeptBytesOutliveTheReplacement) {
  folder.write("a", "precious");
  EXPECT_TRUE(keep("a"));
  EXPECT_TRUE(replaceFile(folder.at("a"), "new"));
  EXPECT_EQ(folder.read("a.unreadable"), "precious");
}

TEST_F(KeepUnreadable, theKeptNameIsOnTheDiskBeforeAnythingReplacesTheFile) {
  for (int number = 1; number <= 6; ++number) {
    ASSERT_TRUE(replaceFile(folder.at("s.plist"), std::to_string(number)));
    const test::RecordedCalls calls;
    EXPECT_TRUE(keep("s.plist"));
    EXPECT_EQ(calls.names().back(), "sync folder") << number;
  }
  test::RecordedCalls calls;
  calls.fail("sync folder", EIO);
  ASSERT_TRUE(replaceFile(folder.at("b"), "x"));
  EXPECT_EQ(keep("b").error().cause, std::errc::io_error);
}

TEST_F(KeepUnreadable, bytesThatAreKeptAlreadyAreNotKeptTwice) {
  folder.write("a", "x");
  EXPECT_TRUE(keep("a"));
  EXPECT_TRUE(keep("a"));
  EXPECT_EQ(folder.names(), (Names{"a", "a.unreadable"}));
}

TEST_F(KeepUnreadable, namesThatAreTakenAreLeftAlone) {
  folder.write("a", "x");
  folder.makeFolder("a.unreadable");
  fs::create_symlink("nowhere", folder / "a.unreadable.2");
  EXPECT_TRUE(keep("a"));
  EXPECT_EQ(folder.read("a.unreadable.3"), "x");
  EXPECT_TRUE(fs::is_symlink(folder / "a.unreadable.2"));
}

TEST_F(KeepUnreadable, aLinkKeepsTheBytesOfItsTarget) {
  folder.write("elsewhere/target", "x");
  fs::create_symlink("elsewhere/target", folder / "a");
  EXPECT_TRUE(keep("a"));
  EXPECT_FALSE(fs::is_symlink(folder / "a.unreadable"));
  EXPECT_TRUE(replaceFile(folder.at("a"), "new"));
  EXPECT_EQ(folder.read("a.unreadable"), "x");
}

// Links between disks are impossible; so is one from the memory disk to this folder.
TEST_F(KeepUnreadable, aCopyIsMadeWhereNoHardLinkCanBe) {
  struct stat here{}, there{};
  if (::stat(folder.path().c_str(), &here) != 0 || ::stat("/dev/shm", &there) != 0 || here.st_dev == there.st_dev) {
    GTEST_SKIP() << "there is no second disk";
  }
  const test::TemporaryFolder other("/dev/shm");
  for (int number = 1; number <= 6; ++number) {
    other.write("target", std::to_string(number));
    fs::remove(folder / "a");
    fs::create_symlink(other / "target", folder / "a");
    EXPECT_TRUE(keep("a"));
  }
  EXPECT_EQ(folder.read("a.unreadable"), "1");
  EXPECT_EQ(folder.read("a.unreadable.5"), "6");
  EXPECT_EQ(folder.names().size(), 6U);
}

TEST_F(KeepUnreadable, onlyRegularFilesAreKept) {
  folder.makeFolder("a folder");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
  fs::create_symlink("nowhere", folder / "dangling");
  const Names before = folder.names();
  for (const char* name : {"a folder", "pipe", "dangling", "missing"}) EXPECT_FALSE(keep(name)) << name;
  EXPECT_EQ(folder.names(), before);
}

TEST_F(KeepUnreadable, aFolderInTheFifthPlaceIsAFailure) {
  for (const char* name : {"a.unreadable", "a.unreadable.2", "a.unreadable.3", "a.unreadable.4"})
    folder.write(name, "");
  folder.write("a", "x");
  folder.makeFolder("a.unreadable.5");
  EXPECT_FALSE(keep("a"));
  EXPECT_EQ(folder.names().size(), 6U);
}

}  // namespace
}  // namespace tarvo
