// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/caution_windows.h"

#include <gtest/gtest.h>

#include "install/addin_outlets.h"
#include "platform/services/locations.h"
#include "platform/services/opener.h"
#include "tests/support/fake_shell.h"
#include "tests/support/memory_files.h"

namespace tarvo::test {
namespace {

class Cautions : public testing::Test {
 protected:
  void runOn(const std::string& version) {
    files.put("/System/Library/CoreServices/SystemVersion.plist",
              "<plist version=\"1.0\"><dict><key>ProductVersion</key><string>" + version + "</string></dict></plist>");
  }
  MemoryFiles files;
  AddinOutlets outlets;
  FakeHost host;
  FakeRunLoop runLoop;
  Windows windows{host, runLoop};
  FakeWorkspace workspace;
  Locations locations{"/", "/home"};
  Opener opener{workspace, files};
  CautionWindows cautions{outlets, windows, files, locations, opener};
};

TEST_F(Cautions, dependOnTheSystemVersion) {
  const struct {
    const char* version;
    bool isLater;
  } cases[] = {{"10.5.8", false}, {"10.6", true}, {"10.10", false}, {"11.2", true}, {"unknown", false}};
  for (const auto& one : cases) {
    runOn(one.version);
    cautions.mailButtonAction();
    EXPECT_EQ(outlets.alertWindow.isShown(), !one.isLater) << one.version;
    EXPECT_EQ(outlets.alertWindowSL.isShown(), one.isLater) << one.version;
    cautions.closeCautionWindow();
    EXPECT_FALSE(outlets.alertWindow.isShown() || outlets.alertWindowSL.isShown()) << one.version;
  }
}

TEST_F(Cautions, areThoseOfOldSystemsWithoutAVersion) {
  cautions.mailButtonAction();
  EXPECT_TRUE(outlets.alertWindow.isShown());
}

TEST_F(Cautions, aboutPowerPointComesAndGoes) {
  cautions.selectPowerPoint();
  EXPECT_TRUE(outlets.alertPowerPoint.isShown());
  EXPECT_FALSE(outlets.alertWindow.isShown());
  cautions.closePowerPoint();
  EXPECT_FALSE(outlets.alertPowerPoint.isShown());
}

TEST_F(Cautions, askForTheScriptProgramsByName) {
  cautions.launchAppleScriptEditor();
  cautions.launchAppleScriptUtil();
  EXPECT_EQ(workspace.launched, (Log{"AppleScript Editor.app", "AppleScript Utility.app"}));
}

}  // namespace
}  // namespace tarvo::test
