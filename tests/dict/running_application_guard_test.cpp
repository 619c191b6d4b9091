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

// Both services note what they are asked.
class WatchedPaths : public ProductPaths {
 public:
  WatchedPaths(const Locations& locations, Log& log) : ProductPaths(locations, Dictionary()), log_(log) {}
  std::string tarvoPathGetAppleyPath(int tool) const override {
    log_.push_back("path of " + std::to_string(tool));
    return "/A/T.app";
  }

 private:
  Log& log_;
};

class WatchedWorkspace : public FakeWorkspace {
 public:
  explicit WatchedWorkspace(Log& log) : log_(log) {}
  std::vector<std::string> launchedApplications() override {
    log_.push_back("running");
    return running;
  }

 private:
  Log& log_;
};

TEST(RunningApplicationGuard, asksForTheToolsPathAlsoWhenNothingRuns) {
  Log log;
  const Locations locations("/", "/Users/taro");
  const WatchedPaths paths(locations, log);
  WatchedWorkspace workspace(log);
  RunningApplicationGuard guard(workspace, paths);
  for (const std::vector<std::string>& running : {std::vector<std::string>{}, {"/A/T.app"}}) {
    log.clear();
    workspace.running = running;
    EXPECT_EQ(guard.isStartedApplication(4), !running.empty());
    EXPECT_EQ(log, (Log{"running", "path of 4"}));
  }
}

}  // namespace
}  // namespace tarvo::test
