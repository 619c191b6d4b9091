// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/user_defaults.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/plist/plist_writer.h"
#include "tests/platform/services/settings_fixture.h"
#include "tests/support/memory_files.h"
#include "tests/support/tired_files.h"

namespace tarvo {
namespace {
namespace fs = std::filesystem;

using UserDefaultsTest = test::SettingsTest;

TEST_F(UserDefaultsTest, valuesKeepTheirKindsOverARestart) {
  const Array rows{PropertyList("a"), PropertyList(Dictionary{})};
  {
    UserDefaults defaults(files, folder.at(file));
    EXPECT_EQ(defaults.find("key"), nullptr);
    defaults.set("text", "文字");
    defaults.set("empty", "");
    defaults.set("no", false);
    defaults.set("number", 1);
    defaults.set("rows", rows);
    defaults.set("none", Array{});
    defaults.synchronize();
  }
  const UserDefaults again(files, folder.at(file));
  EXPECT_EQ(*again.string("text"), "文字");
  EXPECT_EQ(*again.string("empty"), "");
  EXPECT_EQ(*again.find("no"), PropertyList(false));
  EXPECT_EQ(*again.find("number"), PropertyList(1));
  EXPECT_EQ(again.string("number"), nullptr);
  EXPECT_EQ(*again.find("rows"), PropertyList(rows));
  EXPECT_EQ(*again.find("none"), PropertyList(Array{}));
  EXPECT_EQ(again.find("absent"), nullptr);
}

TEST_F(UserDefaultsTest, nothingIsWrittenBeforeSynchronise) {
  UserDefaults defaults(files, folder.at(file));
  defaults.set("a", 1);
  EXPECT_FALSE(folder.exists("Library"));
  defaults.synchronize();
  EXPECT_EQ(stored("a"), PropertyList(1));
  EXPECT_EQ(folder.mode("Library"), 0777U);
  defaults.remove("a");
  EXPECT_EQ(stored("a"), PropertyList(1));
  defaults.synchronize();
  EXPECT_EQ(stored("a"), PropertyList("absent"));
}

TEST_F(UserDefaultsTest, onlyAChangeIsWritten) {
  UserDefaults defaults(files, folder.at(file));
  defaults.synchronize();
  EXPECT_FALSE(folder.exists("Library")) << "there is nothing to keep";
  defaults.set("a", 1);
  defaults.synchronize();
  // Another name for the file keeps its number from being used again.
  fs::create_hard_link(folder / file, folder / "first");
  const ino_t first = fileNumber();
  defaults.set("a", 1);
  defaults.remove("missing");
  defaults.synchronize();
  EXPECT_EQ(fileNumber(), first);
  defaults.set("a", true);
  defaults.synchronize();
  EXPECT_NE(fileNumber(), first);
  EXPECT_EQ(stored("a"), PropertyList(true));
}

TEST_F(UserDefaultsTest, keysThatNobodyKnowsStay) {
  Dictionary root;
  root.set("foreign", Date{"2009-01-01T00:00:00Z"});
  folder.write(file, writePropertyList(root));
  UserDefaults defaults(files, folder.at(file));
  defaults.set("a", 1);
  defaults.synchronize();
  EXPECT_EQ(stored("foreign"), PropertyList(Date{"2009-01-01T00:00:00Z"}));
}

TEST_F(UserDefaultsTest, aFailedWriteIsTriedAgain) {
  folder.write("Library", "in the way");
  UserDefaults defaults(files, folder.at(file));
  defaults.set("a", 1);
  defaults.synchronize();
  EXPECT_EQ(folder.read("Library"), "in the way");
  fs::remove(folder / "Library");
  defaults.synchronize();
  EXPECT_EQ(stored("a"), PropertyList(1));
}

TEST_F(UserDefaultsTest, bytesThatCannotBeReadAreKeptBesideTheFirstWrite) {
  folder.write(file, "garbage");
  UserDefaults defaults(files, folder.at(file));
  defaults.synchronize();
  EXPECT_EQ(folder.read(file), "garbage");
  defaults.set("a", 1);
  defaults.synchronize();
  defaults.set("a", 2);
  defaults.synchronize();
  EXPECT_EQ(stored("a"), PropertyList(2));
  EXPECT_EQ(folder.names("Library/Preferences"), (std::vector<std::string>{"tarvo.plist", "tarvo.plist.unreadable"}));
  EXPECT_EQ(folder.read(file + ".unreadable"), "garbage");
}

TEST_F(UserDefaultsTest, theObserverHearsOfEverySetRemovalAndSynchronise) {
  UserDefaults defaults(files, folder.at(file));
  std::string heard;
  defaults.observer = [&](std::string_view key, const PropertyList* value) {
    heard += std::string(key) + (value != nullptr ? "=" + *value->string() : "-") + " ";
  };
  defaults.set("a", "1");
  defaults.set("a", "1");
  defaults.synchronize();
  defaults.remove("a");
  defaults.remove("a");
  defaults.synchronize();
  EXPECT_EQ(heard, "a=1 a=1 - a- a- - ");
}

TEST(UserDefaultsOnAFaultyDisk, settingsThatCanBeReadAgainStayUnderWhatWasSetMeanwhile) {
  test::MemoryFiles files;
  Dictionary former;
  former.set("kept", 1);
  former.set("changed", 1);
  files.put("/settings.plist", writePropertyList(former));
  files.refuse(test::MemoryFiles::Operation::read, "/settings.plist", std::errc::io_error);
  UserDefaults defaults(files, DiskPath("/settings.plist"));
  EXPECT_TRUE(defaults.isUnknown());
  files.allowAll();
  defaults.set("changed", 2);
  defaults.synchronize();
  EXPECT_FALSE(defaults.isUnknown());
  former.set("changed", 2);
  EXPECT_EQ(files.bytes("/settings.plist"), writePropertyList(former));
  EXPECT_NE(defaults.find("kept"), nullptr);
  EXPECT_EQ(files.paths(), std::vector<std::string>{"/settings.plist"}) << "nothing had to be kept beside";
}

TEST(UserDefaultsOnAFaultyDisk, settingsThatStayUnreadableAreKeptBeside) {
  test::MemoryFiles files;
  files.put("/settings.plist", "damaged");
  UserDefaults defaults(files, DiskPath("/settings.plist"));
  EXPECT_FALSE(defaults.isUnknown()) << "they hold nothing that anybody could read";
  defaults.set("key", 1);
  defaults.synchronize();
  EXPECT_EQ(files.bytes("/settings.plist.unreadable"), "damaged");
}

TEST_F(UserDefaultsTest, aFailureIsToldOnceUntilSomethingIsStored) {
  UserDefaults defaults(files, folder.at(file));
  std::vector<std::string> told;
  defaults.didFail = [&told](const Failure& why) { told.push_back(why.path); };
  auto change = [&defaults, number = 0]() mutable {
    defaults.set("key", ++number);
    defaults.synchronize();
  };
  change();
  EXPECT_TRUE(told.empty());
  fs::remove(folder / file);
  folder.makeFolder(file);  // a folder in its place
  change();
  change();
  EXPECT_EQ(told, std::vector{folder / file});
  fs::remove(folder / file);
  change();
  fs::remove(folder / file);
  folder.makeFolder(file);
  change();
  EXPECT_EQ(told.size(), 2U);
}

TEST(UserDefaultsOnAFaultyDisk, aFaultOfAnInstantMakesNoValueAbsent) {
  test::TiredFiles files;
  files.put("/settings.plist", "<plist><dict><key>tag</key><string>QB</string></dict></plist>");
  const UserDefaults defaults(files, DiskPath("/settings.plist"));
  EXPECT_FALSE(defaults.unread());
  ASSERT_NE(defaults.string("tag"), nullptr);
  EXPECT_EQ(*defaults.string("tag"), "QB");
}

}  // namespace
}  // namespace tarvo
