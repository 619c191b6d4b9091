// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/installed_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/support/memory_files.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

class InstalledFiles : public testing::Test {
 protected:
  InstalledFiles() {
    for (const char* of : {"product", "installed"}) {
      folder.write(std::string(of) + "/a", "first");
      folder.write(std::string(of) + "/empty", "");
      folder.write(std::string(of) + "/inner/b", "second");
    }
  }
  std::vector<Failure> differences() const {
    return differencesOf(folder.at("installed"), folder.at("product"), files);
  }
  Failure one(const char* name, std::error_code cause) const { return {folder / name, Attempt::check, cause}; }

  const TemporaryFolder folder;
  const Locations locations{"/", folder.path()};
  const PosixFiles files{locations};
};

using Differences = std::vector<Failure>;

TEST_F(InstalledFiles, thatAreTheProductsDifferInNothing) {
  EXPECT_EQ(differences(), Differences());
  EXPECT_EQ(differencesOf(folder.at("installed/a"), folder.at("product/a"), files), Differences());
  folder.write("installed/the user's", "too");
  EXPECT_EQ(differences(), Differences());
}

TEST_F(InstalledFiles, areToldApartByTheirSizeAndByTheirContent) {
  folder.write("installed/a", "firsT");
  folder.write("installed/empty", "no longer");
  folder.write("installed/inner/b", "");
  EXPECT_EQ(differences(), (Differences{one("installed/a", Reason::foreign), one("installed/empty", Reason::foreign),
                                        one("installed/inner/b", Reason::emptied)}));
  folder.write("installed/inner/b", "second and more");
  EXPECT_EQ(differences().back(), one("installed/inner/b", Reason::foreign));
}

TEST_F(InstalledFiles, areMissedAtAnyDepth) {
  fs::remove(folder / "installed/inner/b");
  fs::remove(folder / "installed/a");
  const std::error_code gone = make_error_code(std::errc::no_such_file_or_directory);
  EXPECT_EQ(differences(), (Differences{one("installed/a", gone), one("installed/inner/b", gone)}));
}

TEST_F(InstalledFiles, ofAnotherKindAreForeign) {
  fs::remove_all(folder / "installed/inner");
  folder.write("installed/inner", "a file");
  fs::remove(folder / "installed/a");
  ASSERT_EQ(::mkfifo((folder / "installed/a").c_str(), 0666), 0);
  EXPECT_EQ(differences(), (Differences{one("installed/a", Reason::foreign), one("installed/inner", Reason::foreign)}));
}

TEST_F(InstalledFiles, countByWhatTheirLinksLeadTo) {
  fs::rename(folder / "installed/a", folder / "elsewhere");
  fs::create_symlink(folder / "elsewhere", folder / "installed/a");
  fs::create_symlink("..", folder / "product/round");
  fs::create_symlink("nowhere", folder / "product/dead");
  EXPECT_EQ(differences(), Differences());
  folder.write("elsewhere", "other");
  EXPECT_EQ(differences(), Differences{one("installed/a", Reason::foreign)});
}

TEST(InstalledFile, thatCannotBeComparedIsToldWithTheReason) {
  for (const auto operation : {MemoryFiles::Operation::look, MemoryFiles::Operation::read}) {
    MemoryFiles files;
    files.put("/product", "x");
    files.put("/installed", "x");
    files.refuse(operation, "/installed");
    const Differences found = differencesOf(DiskPath("/installed"), DiskPath("/product"), files);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].path, "/installed");
    EXPECT_EQ(found[0].cause, std::errc::permission_denied);
  }
}

}  // namespace
}  // namespace tarvo::test
