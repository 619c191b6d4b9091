// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/tool_list_file.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "tests/install/tool_list_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(ToolList, replacesALongerFileWhole) {
  folder.write(listFile, std::string(5000, 'x'));
  choose(0);
  EXPECT_EQ(written().size(), 274U);
}

TEST_F(ToolList, isWrittenAnewThoughNothingChanged) {
  choose(0);
  const std::string before = written();
  struct stat first{}, second{};
  ASSERT_EQ(::stat((folder / listFile).c_str(), &first), 0);
  log.clear();
  toolList.writeOffieTool();
  ASSERT_EQ(::stat((folder / listFile).c_str(), &second), 0);
  EXPECT_EQ(written(), before);
  EXPECT_NE(first.st_ino, second.st_ino);
  EXPECT_EQ(log, "Tool_Name Tool_Path Tool_Action Tool_Parameter flush write:TarvoManager.txt ");
}

TEST_F(ToolList, withoutItsFolderIsNotWrittenAndTheFolderNotMade) {
  ASSERT_TRUE(files.remove(folder.at("Users/taro/Library/Preferences/Wordhaven")));
  choose(2);
  EXPECT_FALSE(folder.exists(listFolder));
  EXPECT_EQ(*defaults.find("Tool_Path"), PropertyList("tUD8"));
}

TEST_F(ToolList, keepsTheOldFileWhenItCannotBeReplaced) {
  folder.makeFolder(std::string(listFile) + "/folder in the way");
  choose(2);
  EXPECT_EQ(folder.names(listFolder), std::vector<std::string>{"TarvoManager.txt"}) << "no temporary file stays";
  EXPECT_TRUE(folder.exists(std::string(listFile) + "/folder in the way"));
  EXPECT_EQ(*defaults.find("Tool_Path"), PropertyList("tUD8"));
}

TEST_F(ToolList, keepsTheOldBytesWhenTheDiskIsFull) {
  choose(0);
  const std::string before = written();
  rlimit limit{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
  const auto handler = ::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{16, limit.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  choose(2);
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
  ::signal(SIGXFSZ, handler);
  EXPECT_EQ(written(), before);
  EXPECT_EQ(folder.names(listFolder), std::vector<std::string>{"TarvoManager.txt"}) << "no temporary file stays";
  EXPECT_EQ(*defaults.find("Tool_Path"), PropertyList("tUD8"));
}

}  // namespace
}  // namespace tarvo::test
