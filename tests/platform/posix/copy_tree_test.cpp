// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/copy_tree.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <functional>

#include "platform/posix/attributes.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {
namespace fs = std::filesystem;

using Names = std::vector<std::string>;

// In a process of its own, which may change what holds for it alone.
bool holdsInAnotherProcess(const std::function<bool()>& check) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(check() ? 0 : 1);
  int status = 0;
  return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// As somebody whom modes bind; as whoever runs the tests, where that is not root.
bool holdsForAnotherUser(const std::function<bool()>& check) {
  constexpr uid_t nobody = 65534;
  return holdsInAnotherProcess([&] { return (::geteuid() != 0 || ::seteuid(nobody) == 0) && check(); });
}

class CopyTree : public testing::Test {
 protected:
  Result<> copy(const char* from, const char* to) { return copyTree(folder.at(from), folder.at(to)); }
  test::TemporaryFolder folder;
};

TEST_F(CopyTree, aFileIsCopiedWithBytesAndMode) {
  std::string bytes(2'000'003, 'x');
  bytes[1'000'000] = '\0';
  folder.write("from", bytes);
  for (const mode_t mode : {0444U, 0755U, 0600U}) {
    ASSERT_EQ(::chmod((folder / "from").c_str(), mode), 0);
    EXPECT_TRUE(copy("from", "to"));
    EXPECT_TRUE(folder.read("to") == bytes);
    EXPECT_EQ(folder.mode("to"), mode);
    fs::remove(folder / "to");
  }
  folder.write("empty", "");
  EXPECT_TRUE(copy("empty", "to"));
  EXPECT_EQ(fs::file_size(folder / "to"), 0U);
}

TEST_F(CopyTree, filesOfUnknownSizeAreCopiedToo) {
  EXPECT_TRUE(copyTree(DiskPath("/proc/self/stat"), folder.at("to")));
  EXPECT_GT(folder.read("to").size(), 10U);
}

TEST_F(CopyTree, extendedAttributesComeAlong) {
  const std::string place = test::placeForAttributes();
  if (place.empty()) GTEST_SKIP() << "this disk keeps no extended attributes";
  const test::TemporaryFolder here(place);
  here.write("from/file", "x");
  ASSERT_TRUE(setAttribute(here.at("from/file"), "user.tarvo", "file's"));
  ASSERT_TRUE(setAttribute(here.at("from"), "user.tarvo", "folder's"));
  ASSERT_EQ(::chmod((here / "from/file").c_str(), 0444), 0);
  EXPECT_TRUE(copyTree(here.at("from"), here.at("to")));
  EXPECT_EQ(attribute(here.at("to/file"), "user.tarvo"), "file's");
  EXPECT_EQ(attribute(here.at("to"), "user.tarvo"), "folder's");
}

TEST_F(CopyTree, aFolderIsCopiedWithEverythingInIt) {
  folder.write("from/a", "1");
  folder.write("from/inner/line\nbreak", "2");
  folder.write("from/inner/.hidden", "3");
  folder.makeFolder("from/empty");
  fs::create_symlink("a", folder / "from/link");
  fs::create_symlink("nowhere", folder / "from/dangling");
  fs::create_directory_symlink("..", folder / "from/inner/up");
  ASSERT_EQ(::chmod((folder / "from/empty").c_str(), 0555), 0);

  EXPECT_TRUE(copy("from", "to"));
  EXPECT_EQ(folder.names("to"), (Names{"a", "dangling", "empty", "inner", "link"}));
  EXPECT_EQ(folder.names("to/inner"), (Names{".hidden", "line\nbreak", "up"}));
  EXPECT_EQ(folder.read("to/inner/line\nbreak"), "2");
  EXPECT_EQ(folder.mode("to/empty"), 0555U);
  EXPECT_EQ(fs::read_symlink(folder / "to/link"), "a");
  EXPECT_EQ(fs::read_symlink(folder / "to/dangling"), "nowhere");
  EXPECT_EQ(fs::read_symlink(folder / "to/inner/up"), "..");
}

TEST_F(CopyTree, linksAreCopiedAsLinks) {
  folder.write("target", "x");
  fs::create_symlink("target", folder / "link");
  EXPECT_TRUE(copy("link", "copy of link"));
  EXPECT_EQ(fs::read_symlink(folder / "copy of link"), "target");
  EXPECT_TRUE(copyFile(folder.at("link"), folder.at("copy of target")));
  EXPECT_FALSE(fs::is_symlink(folder / "copy of target"));
  EXPECT_EQ(folder.read("copy of target"), "x");
}

TEST_F(CopyTree, nothingIsOverwritten) {
  folder.write("from", "new");
  folder.makeFolder("from folder");
  fs::create_symlink("from", folder / "from link");
  folder.write("file", "old");
  folder.makeFolder("folder");
  fs::create_symlink("file", folder / "link");
  fs::create_symlink("nowhere", folder / "dangling");
  for (const char* from : {"from", "from folder", "from link"}) {
    for (const char* to : {"file", "folder", "link", "dangling"}) EXPECT_FALSE(copy(from, to)) << from << " " << to;
  }
  EXPECT_EQ(folder.read("file"), "old");
  EXPECT_TRUE(folder.names("folder").empty());
  EXPECT_FALSE(folder.exists("nowhere"));
}

TEST_F(CopyTree, missingPlacesAndSpecialFilesFail) {
  folder.write("plain", "");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
  EXPECT_FALSE(copy("missing", "to"));
  EXPECT_FALSE(copy("plain", "missing/to"));
  EXPECT_FALSE(copy("plain", "plain/to"));
  EXPECT_FALSE(copy("pipe", "to"));
  EXPECT_FALSE(copyTree(DiskPath("/dev/null"), folder.at("to")));
  EXPECT_FALSE(copyFile(folder.at("pipe"), folder.at("to")));
  EXPECT_FALSE(copyFile(DiskPath(folder.path()), folder.at("to")));
  EXPECT_FALSE(folder.exists("to"));
}

TEST_F(CopyTree, aFolderIsNotCopiedIntoItself) {
  folder.makeFolder("from/inner/deeper");
  fs::create_directory_symlink("from/inner", folder / "way in");
  EXPECT_FALSE(copy("from", "from/copy"));
  EXPECT_FALSE(copy("from", "from/inner/deeper/copy"));
  EXPECT_FALSE(copy("from", "way in/copy"));
  EXPECT_TRUE(copy("from", "from beside"));
  EXPECT_EQ(folder.names("from/inner"), Names{"deeper"});
}

TEST_F(CopyTree, nothingOfAFolderStaysThatCannotBeCopiedWhole) {
  folder.write("from/a", "1");
  folder.write("from/closed/b", "2");
  ASSERT_EQ(::chmod((folder / "from/closed").c_str(), 0555), 0);
  ASSERT_EQ(::mkfifo((folder / "from/d pipe").c_str(), 0666), 0);
  const auto copyFails = [this] { return copy("from", "to").error().cause == Reason::noRegularFile; };
  EXPECT_TRUE(copyFails());
  EXPECT_EQ(folder.names(), Names{"from"});
  ASSERT_EQ(::chmod(folder.path().c_str(), 0777), 0);
  EXPECT_TRUE(holdsForAnotherUser(copyFails));
  EXPECT_EQ(folder.names(), Names{"from"}) << "a folder of the copy that is closed to its owner goes too";
  ASSERT_EQ(::chmod((folder / "from/closed").c_str(), 0755), 0);
}

TEST_F(CopyTree, nothingOfAFileStaysThatCannotBeCopiedWhole) {
  folder.write("from/a", "small");
  folder.write("from/b", std::string(5000, 'x'));
  EXPECT_TRUE(holdsInAnotherProcess([this] {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{1000, 1000};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    return !copy("from", "to") && !copy("from/b", "to");
  }));
  EXPECT_EQ(folder.names(), Names{"from"});
}

TEST_F(CopyTree, aNewFolderHoldsCopiesOfTheItems) {
  folder.write("a", "1");
  folder.write("some/inner/b", "2");
  const mode_t before = ::umask(077);
  EXPECT_TRUE(copyIntoNewFolder({folder.at("some/inner"), folder.at("a")}, folder.at("to"), 0777));
  EXPECT_TRUE(copyIntoNewFolder({}, folder.at("empty"), 0700));
  ::umask(before);
  EXPECT_EQ(folder.names("to"), (Names{"a", "inner"}));
  EXPECT_EQ(folder.read("to/inner/b"), "2");
  EXPECT_EQ(folder.mode("to"), 0777U);
  EXPECT_EQ(folder.mode("empty"), 0700U);
  EXPECT_EQ(copyIntoNewFolder({folder.at("a")}, folder.at("empty"), 0777).error().cause, std::errc::file_exists);
  EXPECT_TRUE(folder.names("empty").empty());
}

TEST_F(CopyTree, aNewFolderHoldsWhatWasCopiedBeforeTheItemThatCannotBe) {
  folder.write("a", "1");
  folder.write("half/x", "2");
  ASSERT_EQ(::mkfifo((folder / "half/y pipe").c_str(), 0666), 0);
  const Result<> made = copyIntoNewFolder({folder.at("a"), folder.at("half"), folder.at("a")}, folder.at("to"), 0777);
  EXPECT_EQ(made.error().path, folder / "half/y pipe");
  EXPECT_EQ(folder.names("to"), Names{"a"});
  EXPECT_EQ(folder.mode("to"), 0777U);
  EXPECT_EQ(folder.names(), (Names{"a", "half", "to"}));
}

}  // namespace
}  // namespace tarvo
