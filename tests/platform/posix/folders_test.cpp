// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/folders.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {
namespace fs = std::filesystem;

class Folders : public testing::Test {
 protected:
  test::TemporaryFolder folder;
};

TEST_F(Folders, everyLevelMadeIsOpenToAllWhateverTheUmask) {
  folder.makeFolder("existing");
  ASSERT_EQ(::chmod((folder / "existing").c_str(), 0750), 0);
  for (const mode_t mask : {022U, 077U}) {
    const std::string top = "existing/" + std::to_string(mask);
    const mode_t before = ::umask(mask);
    EXPECT_TRUE(makeFolders(folder.at((top + "/b c/医学"))));
    ::umask(before);
    for (const char* level : {"", "/b c", "/b c/医学"}) EXPECT_EQ(folder.mode(top + level), 0777U) << level;
  }
  EXPECT_EQ(folder.mode("existing"), 0750U) << "what was there is left alone";
}

TEST_F(Folders, aFolderThatIsThereIsEnough) {
  folder.makeFolder("a");
  ASSERT_EQ(::chmod((folder / "a").c_str(), 0700), 0);
  fs::create_directory_symlink("a", folder / "link");
  EXPECT_TRUE(makeFolders(folder.at("a")));
  EXPECT_TRUE(makeFolders(folder.at("link")));
  EXPECT_TRUE(makeFolders(folder.at("link/inner")));
  EXPECT_TRUE(makeFolders(DiskPath("/")));
  EXPECT_EQ(folder.mode("a"), 0700U);
  EXPECT_TRUE(fs::is_directory(folder / "a/inner"));
}

TEST_F(Folders, aFileInTheWayIsAFailure) {
  folder.write("plain", "x");
  fs::create_symlink("nowhere", folder / "dangling");
  for (const char* path : {"plain", "plain/a", "plain/a/b", "dangling", "dangling/a"}) {
    EXPECT_FALSE(makeFolders(folder.at(path))) << path;
  }
  EXPECT_FALSE(makeFolders(DiskPath("")));
  EXPECT_EQ(folder.read("plain"), "x");
  EXPECT_FALSE(folder.exists("nowhere"));
}

TEST_F(Folders, aTreeIsRemovedWithoutFollowingLinks) {
  folder.write("outside/kept", "x");
  folder.write("tree/a/b\nc", "");
  folder.makeFolder("tree/empty");
  ASSERT_EQ(::mkfifo((folder / "tree/pipe").c_str(), 0666), 0);
  fs::create_directory_symlink("../outside", folder / "tree/to folder");
  fs::create_symlink("../outside/kept", folder / "tree/to file");
  fs::create_symlink("nowhere", folder / "tree/dangling");
  EXPECT_TRUE(removeTree(folder.at("tree")));
  EXPECT_FALSE(folder.exists("tree"));
  EXPECT_EQ(folder.read("outside/kept"), "x");

  fs::create_directory_symlink("outside", folder / "link");
  EXPECT_TRUE(removeTree(folder.at("link")));
  EXPECT_FALSE(folder.exists("link"));
  EXPECT_TRUE(folder.exists("outside/kept"));
}

TEST_F(Folders, whatIsNotThereCannotBeRemoved) {
  folder.write("plain", "x");
  for (const char* path : {"missing", "plain/a", "missing/a"}) EXPECT_FALSE(removeTree(folder.at(path))) << path;
  EXPECT_TRUE(removeTree(folder.at("plain")));
  EXPECT_FALSE(removeTree(DiskPath("")));
}

}  // namespace
}  // namespace tarvo
