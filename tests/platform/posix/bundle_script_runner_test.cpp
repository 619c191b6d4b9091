// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/bundle_script_runner.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "platform/posix/posix_files.h"
#include "platform/services/classic_path.h"
#include "platform/services/locations.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {
namespace {

constexpr const char* volume = "Macintosh HD";

class BundleScriptRunnerTest : public testing::Test {
 protected:
  void install(const std::string& application, const PropertyList& version) {
    Dictionary information;
    information.set("CFBundleShortVersionString", version);
    folder_.write(application.substr(1) + "/Contents/Info.plist", writePropertyList(information));
  }
  static std::string scriptFor(const std::string& classic) {
    return "tell application \"Finder\" \n set appInfo to info for file \"" + classic +
           "\" \n set appVer to short version of appInfo \n end tell";
  }
  std::optional<std::string> versionOf(const std::string& path) {
    return runner_.runScript(scriptFor(classicPath(path, volume)));
  }
  TemporaryFolder folder_;
  Locations locations_{folder_.path(), folder_ / "home"};
  PosixFiles files_{locations_};
  BundleScriptRunner runner_{files_, locations_, volume};
};

TEST_F(BundleScriptRunnerTest, answersTheShortVersionWhereverTheApplicationLies) {
  for (const char* path : {"/Applications/Microsoft Word.app", "/Volumes/外付け/Word.app", "/Applications/A:B.app"}) {
    install(path, "14.7.1");
    EXPECT_EQ(versionOf(path), "14.7.1") << path;
  }
}

TEST_F(BundleScriptRunnerTest, hasNoResultForWhatIsNotThereOrSaysNoVersion) {
  EXPECT_EQ(versionOf("/Applications/None.app"), std::nullopt);
  install("/Applications/Number.app", 14);
  EXPECT_EQ(versionOf("/Applications/Number.app"), std::nullopt);
}

TEST_F(BundleScriptRunnerTest, hasNoResultForAnyOtherScript) {
  install("/Applications/Word.app", "14");
  const std::string good = scriptFor("Macintosh HD:Applications:Word.app");
  EXPECT_EQ(runner_.runScript(good), "14");
  for (const std::string& bad :
       {std::string(), good + "\n", good.substr(1), scriptFor(""), scriptFor("Word.app"), scriptFor(":Word.app"),
        scriptFor("Macintosh HD:Applications:\"Word\".app"), std::string("tell application \"Finder\" to quit")}) {
    EXPECT_EQ(runner_.runScript(bad), std::nullopt) << bad;
  }
}

}  // namespace
}  // namespace tarvo::test
