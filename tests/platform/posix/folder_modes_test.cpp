// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/support/temporary_folder.h"

// Who may use the folders that are made, and those that are there.
namespace tarvo::test {
namespace {
namespace fs = std::filesystem;

class FolderModes : public testing::Test {
 protected:
  TemporaryFolder folder;
  Locations locations{folder.path(), folder / "Users/taro"};
  PosixFiles files{locations};
  DiskPath at(const std::string& path) const { return DiskPath(path.starts_with('/') ? folder.path() + path : path); }
};

TEST_F(FolderModes, foldersOfAHomeCanBeForItsUserAlone) {
  PosixFiles closed(locations, PosixFiles::HomeFolders::forTheUser);
  folder.write("a", "x");
  EXPECT_TRUE(closed.makeFolder(at("/Users/taro/Library")));
  EXPECT_TRUE(closed.makeFolderOf({at("/a")}, at("/Users/taro/Scripts/Mail")));
  EXPECT_TRUE(closed.makeFolderOf({at("/a")}, at("/Library/Mail")));
  EXPECT_TRUE(closed.write(at("/Users/taro/a"), "old"));
  const Keeping keeping{.folder = at("/Users/taro/Kept/Earlier"), .name = "k"};
  EXPECT_TRUE(closed.replace(at("/Users/taro/a"), "new", keeping));
  for (const char* own : {"", "/Library", "/Scripts", "/Scripts/Mail", "/Kept", "/Kept/Earlier"}) {
    EXPECT_EQ(folder.mode(std::string("Users/taro") + own), 0700U) << own;
  }
  for (const char* shared : {"Users", "Library", "Library/Mail"}) EXPECT_EQ(folder.mode(shared), 0777U) << shared;
}

TEST_F(FolderModes, everybodyWritesToAFolderThatIsOpenWhereAllAboveItAreToo) {
  using Writers = FileService::Writers;
  folder.makeFolder("a/b");
  const auto permit = [this](const char* path, mode_t mode) { EXPECT_EQ(::chmod((folder / path).c_str(), mode), 0); };
  const auto ofB = [this] { return files.writersOf(at("/a/b")); };
  permit("", 0755);
  permit("a", 0755);
  permit("a/b", 0777);
  fs::create_directory_symlink("a/b", folder / "link");
  for (fs::path above = folder.path(); above != "/"; above = above.parent_path()) {
    const bool isOpen = (fs::status(above).permissions() & fs::perms::others_exec) != fs::perms::none;
    if (!isOpen) GTEST_SKIP() << "nobody else gets to " << above;
  }
  EXPECT_EQ(ofB(), Writers::everybody);
  EXPECT_EQ(files.writersOf(at("/link")), Writers::everybody);
  permit("a/b", 0776);
  EXPECT_EQ(ofB(), Writers::some) << "who may not search it makes nothing in it";
  permit("a/b", 0775);
  EXPECT_EQ(ofB(), Writers::some);
  permit("a/b", 0777);
  permit("a", 0750);
  EXPECT_EQ(ofB(), Writers::some);
  EXPECT_EQ(files.writersOf(at("/missing")).error().cause, std::errc::no_such_file_or_directory);
  EXPECT_FALSE(files.writersOf(at("relative")));
}

}  // namespace
}  // namespace tarvo::test
