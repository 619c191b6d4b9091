// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <cerrno>
#include <filesystem>
#include <functional>

#include "platform/posix/copy_tree.h"
#include "platform/posix/folders.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/platform/posix/recorded_calls.h"
#include "tests/support/temporary_folder.h"

// What no look at the disk afterwards can tell: that a copy is on it before it has its name; and what is left when any
// one call to the system fails.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;
using Calls = std::vector<std::string>;
using Names = std::vector<std::string>;

class CopyCalls : public testing::Test {
 protected:
  CopyCalls() {
    folder.write("from/a", "first");
    folder.write("from/inner/b", "second");
    fs::create_symlink("a", folder / "from/inner/link");
    folder.makeFolder("into");
  }
  Result<> copyFolder() { return copyTree(folder.at("from"), folder.at("into/to")); }
  // The file with codes.
  Result<> copyOne() { return copyTree(folder.at("from/a"), folder.at("into/to"), FinderCodes{1, 2}); }
  Result<> makeNew() {
    return copyIntoNewFolder({folder.at("from/a"), folder.at("from/inner")}, folder.at("into/to"), 0777);
  }
  bool isWholeFolder() const {
    return folder.names("into/to") == Names{"a", "inner"} && folder.names("into/to/inner") == Names{"b", "link"} &&
           folder.read("into/to/a") == "first" && folder.read("into/to/inner/b") == "second";
  }
  bool isWholeFile() const { return folder.read("into/to") == "first"; }
  // Each call fails once, for that cause. Answers how many failures of a call were failures of the action.
  int failEach(int cause, const std::function<Result<>()>& act, const std::function<bool()>& isWhole);
  const TemporaryFolder folder;
};

int CopyCalls::failEach(int cause, const std::function<Result<>()>& act, const std::function<bool()>& isWhole) {
  int failures = 0;
  for (int call = 0;; ++call) {
    RecordedCalls calls;
    calls.failAt(call, cause);
    const Result<> done = act();
    SCOPED_TRACE(std::to_string(call) + " " + calls.names().back());
    EXPECT_EQ(folder.names("into"), done ? Names{"to"} : Names{});
    EXPECT_TRUE(done ? isWhole() : done.error().cause.value() == cause);
    failures += done ? 0 : 1;
    fs::remove_all(folder / "into/to");
    if (!calls.hasFailed()) return failures;
  }
}

TEST_F(CopyCalls, aFileIsOnTheDiskBeforeItHasItsName) {
  const RecordedCalls calls;
  EXPECT_TRUE(copyOne());
  EXPECT_EQ(calls.names(), (Calls{"copy", "attribute", "mode", "sync file", "rename if free", "sync folder"}));
}

TEST_F(CopyCalls, aFolderIsOnTheDiskWithAllInItBeforeItHasItsName) {
  const Calls whole{"folder",      "copy", "mode",        "sync file",      "folder",
                    "copy",        "mode", "sync file",   "symbolic link",  "mode",
                    "sync folder", "mode", "sync folder", "rename if free", "sync folder"};
  for (const bool isNew : {false, true}) {
    const RecordedCalls calls;
    EXPECT_TRUE(isNew ? makeNew() : copyFolder());
    EXPECT_EQ(calls.names(), whole);
    EXPECT_TRUE(isWholeFolder());
    fs::remove_all(folder / "into/to");
  }
}

TEST_F(CopyCalls, anyErrorLeavesNothingOfACopy) {
  for (const int cause : {EIO, ENOSPC, EDQUOT}) {
    const int syncs = cause == EDQUOT ? 0 : 1;  // a folder that cannot be synced for another reason is no failure
    EXPECT_EQ(failEach(cause, [this] { return copyOne(); }, [this] { return isWholeFile(); }), 4 + syncs);
    EXPECT_EQ(failEach(cause, [this] { return copyFolder(); }, [this] { return isWholeFolder(); }), 10 + 3 * syncs);
  }
}

TEST_F(CopyCalls, anErrorOfAnItemLeavesTheItemsBeforeItAndAnyOtherErrorNothing) {
  for (int call = 0, failures = 0;; ++call) {
    RecordedCalls calls;
    calls.failAt(call, EIO);
    const Result<> done = makeNew();
    const bool isThere = folder.exists("into/to");
    if (!done && isThere) {
      const Names names = folder.names("into/to");
      EXPECT_TRUE(names.empty() || names == Names{"a"}) << call;
      EXPECT_TRUE(names.empty() || folder.read("into/to/a") == "first") << call;
      EXPECT_TRUE(done.error().path.starts_with(folder / "into/to/")) << done.error().path;
      EXPECT_EQ(folder.mode("into/to"), 0777U);
    }
    EXPECT_TRUE(!done || isWholeFolder()) << call;
    EXPECT_EQ(folder.names("into"), isThere ? Names{"to"} : Names{}) << call;
    failures += done ? 0 : 1;
    fs::remove_all(folder / "into/to");
    if (calls.hasFailed()) continue;
    EXPECT_EQ(failures, 13);
    break;
  }
}

TEST_F(CopyCalls, disksThatCannotRefuseToReplaceStillReplaceNothing) {
  for (const int cause : {EINVAL, ENOSYS}) {
    RecordedCalls calls;
    calls.fail("rename if free", cause);
    EXPECT_TRUE(copyOne());
    EXPECT_EQ(calls.names().at(calls.names().size() - 2), "link");
    EXPECT_EQ(folder.names("into"), Names{"to"});
    EXPECT_EQ(copyOne().error().cause, std::errc::file_exists);
    fs::remove_all(folder / "into/to");
    EXPECT_TRUE(copyFolder());
    EXPECT_TRUE(isWholeFolder());
    EXPECT_EQ(calls.names().at(calls.names().size() - 2), "rename");
    fs::remove_all(folder / "into/to");
    calls.fail("link", EPERM);
    EXPECT_TRUE(copyOne());
    EXPECT_EQ(calls.names().at(calls.names().size() - 2), "rename");
    fs::remove_all(folder / "into/to");
  }
}

TEST_F(CopyCalls, whatComesIntoBeingMeanwhileIsNotReplaced) {
  folder.write("into/to", "the user's");
  for (const int cause : {0, EINVAL}) {
    RecordedCalls calls;
    if (cause != 0) calls.fail("rename if free", cause);
    for (const bool link : {true, false}) {
      if (!link) calls.fail("link", EPERM);
      folder.write("into/other", "new");
      EXPECT_EQ(moveFile(folder.at("into/other"), folder.at("into/to")).error().cause, std::errc::file_exists);
    }
  }
  EXPECT_EQ(folder.read("into/to"), "the user's");
  EXPECT_EQ(folder.read("into/other"), "new");
}

TEST_F(CopyCalls, codesThatADiskRefusesAreLeftOut) {
  RecordedCalls calls;
  calls.fail("attribute", ENOTSUP);
  EXPECT_TRUE(copyOne());
  EXPECT_TRUE(isWholeFile());
}

TEST_F(CopyCalls, aFolderThatIsMadeIsOnTheDiskLevelByLevel) {
  const RecordedCalls calls;
  EXPECT_TRUE(makeFolders(folder.at("into/x/y")));
  EXPECT_EQ(calls.names(), (Calls{"folder", "mode", "sync folder", "folder", "mode", "sync folder"}));
}

TEST_F(CopyCalls, aFolderIsSyncedWhenThatIsAskedFor) {
  const Locations locations{"/", folder.path()};
  PosixFiles files(locations);
  RecordedCalls calls;
  EXPECT_TRUE(files.sync(folder.at("into")));
  EXPECT_EQ(calls.names(), Calls{"sync folder"});
  calls.fail("sync folder", EINVAL);
  EXPECT_TRUE(files.sync(folder.at("into"))) << "some disks cannot";
  calls.fail("sync folder", EIO);
  EXPECT_EQ(files.sync(folder.at("into")).error().cause, std::errc::io_error);
  EXPECT_EQ(files.sync(folder.at("missing")).error().cause, std::errc::no_such_file_or_directory);
  EXPECT_FALSE(files.sync(DiskPath("relative")));
}

TEST_F(CopyCalls, aFolderThatMayBeLostIsNotMade) {
  EXPECT_EQ(failEach(EIO, [this] { return makeFolders(folder.at("into/to")); }, [] { return true; }), 4);
}

}  // namespace
}  // namespace tarvo::test
