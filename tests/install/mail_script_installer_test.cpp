// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/mail_script_installer.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/locations.h"
#include "platform/posix/posix_files.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {
namespace {

constexpr const char* systemVersionFile = "System/Library/CoreServices/SystemVersion.plist";
constexpr const char* oldFolder = "Users/taro/Library/Scripts/Mail Scripts";
constexpr const char* newFolder = "Users/taro/Library/Scripts/Applications/Mail";

class MailScriptFolder : public testing::Test {
 protected:
  MailScriptFolder() { folder.makeFolder("Users/taro"); }
  void runOn(const std::string& version) {
    folder.write(systemVersionFile, "<plist version=\"1.0\"><dict><key>ProductVersion</key><string>" + version +
                                        "</string></dict></plist>");
  }
  bool create() { return MailScriptInstaller(files, "/Users/taro").createMailScriptFolder(); }

  TemporaryFolder folder;
  Locations locations{folder.path(), folder / "Users/taro"};
  PosixFiles files{locations};
};

struct VersionCase {
  const char *version, *made, *notMade;
};

TEST_F(MailScriptFolder, liesWhereTheSystemVersionPutsIt) {
  const VersionCase cases[] = {{"10.3.9", oldFolder, newFolder},
                               {"10.4", newFolder, oldFolder},
                               {"10.6.8", newFolder, oldFolder},
                               {"10.10", oldFolder, newFolder},
                               {"no number", oldFolder, newFolder}};
  for (const VersionCase& running : cases) {
    ASSERT_TRUE(files.remove("/Users"));
    folder.makeFolder("Users/taro");
    runOn(running.version);
    EXPECT_TRUE(create()) << running.version;
    EXPECT_TRUE(folder.exists(running.made)) << running.version;
    EXPECT_FALSE(folder.exists(running.notMade)) << running.version;
  }
}

TEST_F(MailScriptFolder, isTheOldOneWhenTheVersionIsUnknown) {
  EXPECT_TRUE(create());
  EXPECT_TRUE(folder.exists(oldFolder));
  EXPECT_FALSE(folder.exists(newFolder));
}

TEST_F(MailScriptFolder, isMadeOpenToEverybodyAndMayBeThereAlready) {
  runOn("10.6.8");
  const mode_t before = ::umask(022);
  EXPECT_TRUE(create());
  ::umask(before);
  EXPECT_EQ(folder.mode(newFolder), 0777U);
  EXPECT_TRUE(create());
}

TEST_F(MailScriptFolder, isNotMadeBelowAPlainFile) {
  folder.write("Users/taro/Library", "in the way");
  EXPECT_FALSE(create());
}

}  // namespace
}  // namespace tarvo::test
