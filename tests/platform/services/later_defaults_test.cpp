// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/platform/services/settings_fixture.h"

// Settings that wait for something else to be on the disk first.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

using LaterDefaults = SettingsTest;

TEST_F(LaterDefaults, aValueForLaterIsStoredWithTheFirstFlushAtWhichItMay) {
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

TEST_F(LaterDefaults, aValueForLaterIsTriedAgainAndGivesWayToOneThatIsSet) {
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

TEST_F(LaterDefaults, whatTheProgramNotesForItselfIsStoredAndNotTold) {
  bool may = false;
  int told = 0;
  {
    UserDefaults defaults(files, folder.at(file));
    defaults.observer = [&told](std::string_view key, const PropertyList*) { told += key.empty() ? 0 : 1; };
    defaults.noteLater("noted", true, [&may] { return may; });
    EXPECT_NE(defaults.find("noted"), nullptr);
    defaults.synchronize();
    EXPECT_EQ(stored("noted"), PropertyList("absent"));
    may = true;
    defaults.synchronize();
    EXPECT_EQ(stored("noted"), PropertyList(true));
    defaults.forget("noted");
    defaults.synchronize();
  }
  EXPECT_EQ(stored("noted"), PropertyList("absent"));
  EXPECT_EQ(told, 0);
}

}  // namespace
}  // namespace tarvo::test
