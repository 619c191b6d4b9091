// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/replace_file.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "platform/posix/attributes.h"
#include "platform/posix/descriptor.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {
namespace fs = std::filesystem;

using Names = std::vector<std::string>;

class ReplaceFile : public testing::Test {
 protected:
  test::TemporaryFolder folder;
};

TEST_F(ReplaceFile, aNewFileTakesTheUmasksMode) {
  for (const mode_t mask : {022U, 077U, 0U}) {
    const mode_t before = ::umask(mask);
    const std::string name = "new " + std::to_string(mask);
    EXPECT_TRUE(replaceFile(folder.at(name), "bytes"));
    ::umask(before);
    EXPECT_EQ(folder.mode(name), 0666U & ~mask);
    EXPECT_EQ(folder.read(name), "bytes");
  }
}

TEST_F(ReplaceFile, anyBytesAndAnyNameAreTaken) {
  std::string bytes(3 << 20, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 7 + i / 251);
  const Names names{"a\nb", "医学 辞書", " ", "-f", "\xFF\xFE", std::string(255, 'n')};
  for (const std::string& name : names) {
    EXPECT_TRUE(replaceFile(folder.at(name), bytes));
    EXPECT_TRUE(folder.read(name) == bytes);
    EXPECT_TRUE(replaceFile(folder.at(name), ""));
    EXPECT_EQ(folder.read(name), "");
  }
  EXPECT_EQ(folder.names().size(), names.size()) << "no temporary file is left";
}

TEST_F(ReplaceFile, keepsTheModeOfAnExistingFile) {
  for (const mode_t mode : {0444U, 0600U, 0666U, 0777U, 0400U}) {
    folder.write("file", "old");
    ASSERT_EQ(::chmod((folder / "file").c_str(), mode), 0);
    EXPECT_TRUE(replaceFile(folder.at("file"), "new"));
    EXPECT_EQ(folder.mode("file"), mode);
    fs::remove(folder / "file");
  }
}

TEST_F(ReplaceFile, keepsTheOwnerWhereTheSystemAllows) {
  folder.write("file", "old");
  if (::chown((folder / "file").c_str(), 12345, 23456) != 0) GTEST_SKIP() << "only root may give files away";
  ASSERT_EQ(::chmod((folder / "file").c_str(), 0640), 0);
  EXPECT_TRUE(replaceFile(folder.at("file"), "new"));
  struct stat status{};
  ASSERT_EQ(::stat((folder / "file").c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 12345U);
  EXPECT_EQ(status.st_gid, 23456U);
  EXPECT_EQ(status.st_mode & 07777, 0640U);
}

TEST_F(ReplaceFile, keepsExtendedAttributes) {
  const std::string place = test::placeForAttributes();
  if (place.empty()) GTEST_SKIP() << "this disk keeps no extended attributes";
  const test::TemporaryFolder here(place);
  here.write("file", "old");
  const std::string value("a\0b", 3);
  ASSERT_TRUE(setAttribute(here.at("file"), "user.tarvo.one", value));
  ASSERT_TRUE(setAttribute(here.at("file"), "user.tarvo.empty", ""));
  ASSERT_EQ(::chmod((here / "file").c_str(), 0444), 0);
  EXPECT_TRUE(replaceFile(here.at("file"), "new"));
  EXPECT_EQ(here.read("file"), "new");
  EXPECT_EQ(attribute(here.at("file"), "user.tarvo.one"), value);
  EXPECT_EQ(attribute(here.at("file"), "user.tarvo.empty"), "");
}

TEST_F(ReplaceFile, followsLinksAndLeavesThem) {
  folder.makeFolder("other");
  folder.write("other/target", "old");
  fs::create_symlink("other/target", folder / "relative");
  fs::create_symlink(folder / "relative", folder / "chain");
  fs::create_symlink("other/new", folder / "dangling");
  fs::create_symlink("../dangling", folder / "other/back");
  fs::create_directory_symlink("other", folder / "linked folder");

  EXPECT_TRUE(replaceFile(folder.at("chain"), "1"));
  EXPECT_EQ(folder.read("other/target"), "1");
  EXPECT_TRUE(replaceFile(folder.at("other/back"), "2"));
  EXPECT_EQ(folder.read("other/new"), "2");
  EXPECT_TRUE(replaceFile(folder.at("linked folder/target"), "3"));
  EXPECT_EQ(folder.read("other/target"), "3");

  for (const char* link : {"relative", "chain", "dangling", "other/back", "linked folder"}) {
    EXPECT_TRUE(fs::is_symlink(folder / link)) << link;
  }
  EXPECT_EQ(folder.names("other"), (Names{"back", "new", "target"}));
}

TEST_F(ReplaceFile, refusesWhatIsNoRegularFile) {
  folder.makeFolder("a folder");
  folder.write("plain", "content");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
  fs::create_symlink("loop b", folder / "loop a");
  fs::create_symlink("loop a", folder / "loop b");
  fs::create_symlink("a folder", folder / "to folder");
  fs::create_symlink("pipe", folder / "to pipe");
  fs::create_symlink("missing/file", folder / "to nowhere");
  fs::create_symlink("missing/", folder / "to no folder");
  // A device of our own (root may make one): a failure here must not cost the machine one of its devices.
  if (::mknod((folder / "device").c_str(), S_IFCHR | 0666, makedev(1, 3)) == 0) {
    fs::create_symlink("device", folder / "to device");
    EXPECT_FALSE(replaceFile(folder.at("to device"), "bytes"));
  }
  const Names before = folder.names();
  for (const char* name : {"a folder", "a folder/", "pipe", "loop a", "to folder", "to pipe", "to nowhere",
                           "to no folder", "missing/file", "plain/file", "new/", ""}) {
    EXPECT_FALSE(replaceFile(folder.at(name), "bytes")) << name;
  }
  EXPECT_FALSE(replaceFile(folder.at(std::string(256, 'n')), "bytes"));
  EXPECT_FALSE(replaceFile(DiskPath(""), "bytes"));
  EXPECT_EQ(folder.names(), before);
  EXPECT_EQ(folder.read("plain"), "content");
}

TEST_F(ReplaceFile, aFailedWriteLeavesTheOldFileAndNothingElse) {
  folder.write("file", "old");
  const pid_t child = ::fork();
  if (child == 0) {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{1000, 1000};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const bool refused = !replaceFile(folder.at("file"), std::string(5000, 'x')) &&
                         !replaceFile(folder.at("new"), std::string(5000, 'x')) &&
                         replaceFile(folder.at("small"), "ok");
    ::_exit(refused ? 0 : 1);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  EXPECT_EQ(folder.names(), (Names{"file", "small"}));
  EXPECT_EQ(folder.read("file"), "old");
}

TEST_F(ReplaceFile, killedAtAnyMomentItLeavesTheOldBytesOrTheNew) {
  const std::string old(400'000, 'o'), fresh(700'000, 'n');
  ASSERT_TRUE(replaceFile(folder.at("file"), old));
  for (int round = 0; round < 25; ++round) {
    const pid_t child = ::fork();
    if (child == 0) {
      while (replaceFile(folder.at("file"), fresh) && replaceFile(folder.at("file"), old)) {
      }
      ::_exit(1);
    }
    ::usleep(static_cast<useconds_t>(500 + 397 * round));
    ::kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status)) << "the file could not be replaced";
    const std::string bytes = folder.read("file");
    ASSERT_TRUE(bytes == old || bytes == fresh) << bytes.size();
  }
}

TEST_F(ReplaceFile, readersAlwaysMeetAWholeFile) {
  const std::string old(300'000, 'o'), fresh(500'000, 'n');
  ASSERT_TRUE(replaceFile(folder.at("file"), old));
  const pid_t child = ::fork();
  if (child == 0) {
    bool good = true;
    for (int i = 0; i < 60; ++i) good = good && replaceFile(folder.at("file"), i % 2 == 0 ? fresh : old);
    ::_exit(good ? 0 : 1);
  }
  int status = 0;
  while (::waitpid(child, &status, WNOHANG) == 0) {
    const std::string bytes = folder.read("file");
    ASSERT_TRUE(bytes == old || bytes == fresh) << bytes.size();
  }
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

TEST(TemporaryName, cannotBeGuessedAndFitsEveryFolder) {
  const std::string first = temporaryName();
  EXPECT_NE(first, temporaryName());
  EXPECT_GE(first.size(), 24U);
  EXPECT_LE(first.size(), 64U);
  EXPECT_EQ(first.find('/'), std::string::npos);
}

}  // namespace
}  // namespace tarvo
