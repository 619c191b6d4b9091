// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/plist/plist_reader.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "platform/services/user_defaults.h"
#include "tests/support/temporary_folder.h"

// Settings that go to the disk when something else has.
namespace tarvo {
namespace {
namespace fs = std::filesystem;

class LaterSettings : public testing::Test {
 protected:
  // What the disk holds under the key.
  PropertyList stored(std::string_view key) const {
    const auto list = readPropertyList(folder.read(file));
    const Dictionary* root = list ? list->dictionary() : nullptr;
    const PropertyList* value = root != nullptr ? root->find(key) : nullptr;
    return value != nullptr ? *value : PropertyList("absent");
  }
  ino_t fileNumber() const {
    struct stat status{};
    return ::stat((folder / file).c_str(), &status) == 0 ? status.st_ino : 0;
  }
  const std::string file = "Library/Preferences/tarvo.plist";
  test::TemporaryFolder folder;
  Locations locations{"/", folder.path()};
  PosixFiles files{locations};
};

TEST_F(LaterSettings, aValueForLaterIsStoredWithTheFirstFlushAtWhichItMay) {
  bool may = false;
  UserDefaults defaults(files, folder.at(file));
  defaults.setLater("later", true, [&may] { return may; });
  EXPECT_EQ(*defaults.find("later"), PropertyList(true));
  defaults.synchronize();
  EXPECT_EQ(fileNumber(), 0U) << "nothing else was to be written";
  defaults.set("other", 1);
  defaults.synchronize();
  EXPECT_EQ(stored("other"), PropertyList(1));
  EXPECT_EQ(stored("later"), PropertyList("absent"));
  may = true;
  EXPECT_EQ(stored("later"), PropertyList("absent")) << "it waits for a flush";
  defaults.synchronize();
  EXPECT_EQ(stored("later"), PropertyList(true));
  EXPECT_EQ(stored("other"), PropertyList(1));
}

TEST_F(LaterSettings, aValueForLaterIsTriedAgainAndGivesWayToOneThatIsSet) {
  UserDefaults defaults(files, folder.at(file));
  defaults.setLater("set", true, [] { return false; });
  defaults.setLater("removed", true, [] { return false; });
  defaults.setLater("tried", true, [] { return true; });
  defaults.set("set", true);
  defaults.remove("removed");
  folder.makeFolder(file);  // a folder in its place
  defaults.synchronize();
  EXPECT_TRUE(defaults.unwritten());
  fs::remove(folder / file);
  defaults.synchronize();
  EXPECT_EQ(stored("set"), PropertyList(true));
  EXPECT_EQ(stored("removed"), PropertyList("absent"));
  EXPECT_EQ(stored("tried"), PropertyList(true));
}

}  // namespace
}  // namespace tarvo
