// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/directory_creation.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {
namespace {

class DirectoryCreation : public testing::Test {
 protected:
  Result<> make(const std::string& relativePath) {
    return createDirectoryFromPath(files, relativePath, DiskPath(folder.path()));
  }
  TemporaryFolder folder;
  Locations locations{"/", folder.path()};
  PosixFiles files{locations};
};

TEST_F(DirectoryCreation, makesEachMissingLevelOpenToEverybody) {
  const mode_t before = ::umask(022);
  EXPECT_TRUE(make("Library/Scripts/日本 語"));
  ::umask(before);
  for (const char* level : {"Library", "Library/Scripts", "Library/Scripts/日本 語"}) {
    EXPECT_EQ(folder.mode(level), 0777U) << level;
  }
}

TEST_F(DirectoryCreation, leavesLevelsThatAreThereAlone) {
  folder.makeFolder("Library/Scripts");
  ASSERT_EQ(::chmod((folder / "Library").c_str(), 0700), 0);
  folder.write("Library/Scripts/kept", "x");
  EXPECT_TRUE(make("Library/Scripts"));
  EXPECT_TRUE(make("Library/Scripts/Mail"));
  EXPECT_EQ(folder.mode("Library"), 0700U);
  EXPECT_EQ(folder.names("Library/Scripts"), (std::vector<std::string>{"Mail", "kept"}));
}

TEST_F(DirectoryCreation, makesTheMissingBaseToo) {
  EXPECT_TRUE(createDirectoryFromPath(files, "a", folder.at("new base")));
  EXPECT_TRUE(folder.exists("new base/a"));
}

TEST_F(DirectoryCreation, countsAPlainFileAsPresent) {
  folder.write("Library/Scripts", "a file");
  EXPECT_TRUE(make("Library/Scripts"));
  EXPECT_EQ(folder.read("Library/Scripts"), "a file");
}

TEST_F(DirectoryCreation, failsBelowAPlainFile) {
  folder.write("Library", "a file");
  EXPECT_FALSE(make("Library/Scripts/Mail"));
  EXPECT_EQ(folder.names(), std::vector<std::string>{"Library"});
  EXPECT_EQ(folder.read("Library"), "a file");
}

TEST_F(DirectoryCreation, keepsTheLevelsThatItMadeBeforeAFailure) {
  const std::string tooLong(300, 'x');
  EXPECT_FALSE(make("a/" + tooLong + "/b"));
  EXPECT_TRUE(folder.exists("a"));
}

TEST_F(DirectoryCreation, toleratesExtraSlashesAndAnEmptyPath) {
  EXPECT_TRUE(make(""));
  EXPECT_TRUE(folder.names().empty());
  EXPECT_TRUE(make("/a//b/"));
  EXPECT_TRUE(folder.exists("a/b"));
}

}  // namespace
}  // namespace tarvo::test
