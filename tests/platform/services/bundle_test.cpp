// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/bundle.h"

#include <gtest/gtest.h>

#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

class BundleTest : public testing::Test {
 protected:
  // The resource below the bundle's folder, "" for none.
  std::string found(std::string_view name, std::string_view type, std::string_view subfolder = {}) const {
    return bundle.resource(name, type, subfolder).value_or(folder.at("")).text().substr(folder.path().size() + 1);
  }
  test::TemporaryFolder folder;
  Locations locations{"/", folder.path()};
  PosixFiles files{locations};
  Bundle bundle{files, DiskPath(folder.path()), {"ja", "en"}};
};

TEST_F(BundleTest, theFolderItselfComesBeforeTheLanguagesInTheUsersOrder) {
  folder.write("en.lproj/a.txt", "");
  EXPECT_EQ(found("a", "txt"), "en.lproj/a.txt");
  folder.write("ja.lproj/a.txt", "");
  EXPECT_EQ(found("a", "txt"), "ja.lproj/a.txt");
  folder.write("a.txt", "");
  EXPECT_EQ(found("a", "txt"), "a.txt");
}

TEST_F(BundleTest, subfoldersLieInsideTheLanguagesToo) {
  folder.write("ja.lproj/Help/index.htm", "");
  EXPECT_EQ(found("index", "htm", "Help"), "ja.lproj/Help/index.htm");
  EXPECT_EQ(found("index", "htm"), "");
  folder.write("Help/index.htm", "");
  EXPECT_EQ(found("index", "htm", "Help"), "Help/index.htm");
}

TEST_F(BundleTest, aNameWithoutATypeGetsNoDot) {
  folder.write("Script", "");
  folder.write("Script.", "");
  EXPECT_EQ(found("Script", ""), "Script");
  EXPECT_EQ(found("", ""), "");
  EXPECT_EQ(found("script", ""), "") << "case is exact";
  EXPECT_EQ(found("missing", "txt"), "");
}

TEST_F(BundleTest, imagesAreDrawingsWhateverExtensionTheirNameHas) {
  folder.write("images/MG.svg", "");
  folder.write("images/SM32.svg", "");
  EXPECT_EQ(bundle.image("MG.tif"), folder.at("images/MG.svg"));
  EXPECT_EQ(bundle.image("SM32"), folder.at("images/SM32.svg"));
  EXPECT_EQ(bundle.image("missing.tif"), std::nullopt);
  EXPECT_EQ(bundle.image(""), std::nullopt);
}

}  // namespace
}  // namespace tarvo
