// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/running_application_guard.h"

#include <gtest/gtest.h>

#include "platform/services/locations.h"
#include "platform/services/product_paths.h"
#include "tests/support/fake_shell.h"

namespace tarvo::test {
namespace {

struct Case {
  std::string toolPath;
  std::vector<std::string> running;
  bool isStarted;
};

TEST(RunningApplicationGuard, knowsAToolByExactlyThePathOfTheProduct) {
  const Case cases[] = {{"/A/T.app", {"/A/T.app"}, true},
                        {"/A/T.app", {"/B/X.app", "/A/T.app"}, true},
                        {"/A/T.app", {"/B/T.app"}, false},
                        {"/A/T.app", {"/a/t.app"}, false},
                        {"/A/T.app", {"/A/T.app/"}, false},
                        {"/A/T.app", {"/A/T.app/Contents/T.app"}, false},
                        {"/A/T.app", {}, false},
                        {"/A/T.app", {""}, false},  // an application without a place
                        {"/A/T.app", {"", "/A/T.app"}, true},
                        {"", {"", "/A/T.app"}, false},
                        {"", {}, false}};
  const Locations locations("/", "/Users/taro");
  for (const Case& example : cases) {
    Dictionary configuration;
    configuration.set("tarvoPathGetAppleyPath.4", example.toolPath);
    const ProductPaths paths(locations, configuration);
    FakeWorkspace workspace;
    workspace.running = example.running;
    RunningApplicationGuard guard(workspace, paths);
    EXPECT_EQ(guard.isStartedApplication(RunningApplicationGuard::userDictionaryTool), example.isStarted)
        << testing::PrintToString(example.running);
    EXPECT_FALSE(guard.isStartedApplication(5)) << "another tool has no path";
  }
}

}  // namespace
}  // namespace tarvo::test
