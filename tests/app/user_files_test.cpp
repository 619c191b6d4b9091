// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/user_files.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "install/mail_script_installer.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "platform/services/plist_file.h"
#include "platform/services/product_paths.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {
namespace {

class UserPlaceTest : public testing::Test {
 protected:
  std::vector<std::string> folders(const Dictionary& paths) {
    std::vector<std::string> below;
    const ProductPaths configured(locations, paths);
    for (const DiskPath& path : userPlace(files, locations, configured).folders) {
      below.push_back(path.isIn(locations.home()) ? path.text().substr(locations.home().text().size()) : path.text());
    }
    std::ranges::sort(below);
    below.erase(std::unique(below.begin(), below.end()), below.end());
    return below;
  }
  TemporaryFolder folder;
  Locations locations{"/", folder.path()};
  PosixFiles files{locations};
};

TEST_F(UserPlaceTest, namesTheFoldersInWhichTheProductWrites) {
  EXPECT_EQ(folders({}),
            (std::vector<std::string>{
                "/Documents/Microsoft User Data/Entourage Script Menu Items",
                "/Documents/Microsoft User Data/Outlook Script Menu Items", "/Library/Application Support/Wordhaven",
                "/Library/Application Support/Wordhaven/Tarvo Styles", "/Library/Application Support/Wordhaven/UserDic",
                "/Library/Application Support/Wordhaven/UserTMA", "/Library/Preferences",
                "/Library/Preferences/Wordhaven", "/Library/Preferences/Wordhaven/Cache",
                "/Library/Scripts/Applications/Mail", "/Library/Scripts/Mail Scripts"}));
  EXPECT_TRUE(files.isThere(folder.at("Library/Preferences"))) << "for the lock";
}

TEST_F(UserPlaceTest, namesTheFoldersThatTheConfigurationGives) {
  Dictionary paths;
  paths.set("tarvoPathUserDicFolderURL", "~/Dictionaries");
  const std::vector<std::string> named = folders(paths);
  EXPECT_TRUE(std::ranges::binary_search(named, "/Dictionaries"));
  EXPECT_FALSE(std::ranges::binary_search(named, "/Library/Application Support/Wordhaven/UserDic"));
}

TEST(MailScriptFolders, areThoseOfTheShippedListOfAddins) {
  const TemporaryFolder folder;
  const Locations locations{"/", folder.path()};
  const PosixFiles files{locations};
  const auto list = readDictionary(files, DiskPath(TARVO_SOURCE_DIR "/resources/DefaultAddin.plist"));
  ASSERT_TRUE(list);
  int programs = 0;
  for (const auto& [key, rows] : list->entries()) {
    for (const PropertyList& row : rows.array() != nullptr ? *rows.array() : Array()) {
      const std::string* scripts = row.dictionary()->string("InstallMacroName");
      if (scripts == nullptr || !scripts->starts_with("MailScripts/")) continue;
      ++programs;
      for (const char* place : {"InstallFolderName", "InstallFolderPath"}) {
        EXPECT_NE(std::ranges::find(mailScriptFolders, std::string_view(*row.dictionary()->string(place))),
                  mailScriptFolders.end())
            << place << " of " << *scripts;
      }
    }
  }
  EXPECT_EQ(programs, 3);
}

}  // namespace
}  // namespace tarvo::test
