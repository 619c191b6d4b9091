// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/product_defaults.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/temporary_folder.h"

namespace tarvo::test {
namespace {

class MissingResource : public testing::Test {
 protected:
  MissingResource() {
    folder.write("WordhavenPaths.plist", "");
    folder.write("DefaultAddin.plist", "");
  }
  void expectCause(std::error_code cause) const {
    EXPECT_EQ(missingResource(DiskPath(folder.path())), (Failure{first, Attempt::look, cause}));
  }
  const TemporaryFolder folder;
  const std::string first = folder / "DefaultAddin.plist";
};

TEST_F(MissingResource, isNoneWhereBothFilesAre) { EXPECT_EQ(missingResource(DiskPath(folder.path())), std::nullopt); }

TEST_F(MissingResource, isTheFirstThatIsNotThere) {
  std::filesystem::remove(first);
  expectCause(std::make_error_code(std::errc::no_such_file_or_directory));
  folder.write("DefaultAddin.plist", "");
  std::filesystem::remove(folder / "WordhavenPaths.plist");
  EXPECT_EQ(missingResource(DiskPath(folder.path())).value_or(Failure()).path, folder / "WordhavenPaths.plist");
}

TEST_F(MissingResource, isTakenForAbsentOnlyWhereItIs) {
  std::filesystem::remove(first);
  std::filesystem::create_symlink(first, first);
  expectCause(std::make_error_code(std::errc::too_many_symbolic_link_levels));
  std::filesystem::remove(first);
  std::filesystem::create_directory(first);
  expectCause(Reason::noRegularFile);
}

TEST_F(MissingResource, isToldOfWhatShouldBeAFolder) {
  const auto found = missingResource(DiskPath(first));
  ASSERT_TRUE(found);
  EXPECT_EQ(found->path, first + "/DefaultAddin.plist");
  EXPECT_EQ(found->cause, std::errc::not_a_directory);
}

}  // namespace
}  // namespace tarvo::test
