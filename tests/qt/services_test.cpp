// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QEventLoop>
#include <QTimer>
#include <filesystem>
#include <memory>

#include "app/product_defaults.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "platform/services/product_paths.h"
#include "qt/command_line.h"
#include "qt/services/qt_run_loop.h"
#include "qt/services/qt_workspace.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

void runFor(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

TEST(QtRunLoop, postedCallsRunLaterInTheirOrderAlsoInNestedLoops) {
  QtRunLoop loop;
  std::string order;
  loop.post([&] {
    order += "a";
    loop.post([&] { order += "c"; });
    runFor(10);
    order += "d";
  });
  loop.post([&] { order += "b"; });
  EXPECT_EQ(order, "");
  runFor(30);
  EXPECT_EQ(order, "abcd");
}

TEST(QtRunLoop, aTimerFiresOnceAndNotWhenCancelled) {
  QtRunLoop loop;
  int fired = 0;
  const RunLoop::Timer first = loop.after(0.01, [&] { ++fired; });
  const RunLoop::Timer second = loop.after(0.01, [&] { fired += 100; });
  EXPECT_NE(first, 0U);
  EXPECT_NE(first, second);
  loop.cancel(second);
  runFor(60);
  EXPECT_EQ(fired, 1);
  loop.cancel(first);  // it is over: nothing happens
}

TEST(QtRunLoop, nothingRunsAfterItsEnd) {
  int ran = 0;
  auto loop = std::make_unique<QtRunLoop>();
  loop->post([&] { ++ran; });
  loop->after(0, [&] { ++ran; });
  loop.reset();
  runFor(20);
  EXPECT_EQ(ran, 0);
}

TEST(QtWorkspace, startsAnApplicationByItsNameAndListsWhatRuns) {
  const test::TemporaryFolder folder;
  const Locations locations(folder.path(), folder / "Users/taro");
  PosixFiles files(locations);
  Dictionary list;
  list.set("RunningApplications", Array{"/Counted.app"});
  const ProductPaths paths(locations, list);
  QtWorkspace workspace({files, paths}, [] { return std::vector{ProductPath("/Runs.app")}; });
  EXPECT_EQ(workspace.launchedApplications(), (std::vector{ProductPath("/Runs.app"), ProductPath("/Counted.app")}));

  const std::string program = "Applications/Utilities/Some Editor.app/Contents/MacOS/Some Editor";
  const std::string trace = folder / "started";
  folder.write(program, "#!/bin/sh\n: > '" + trace + "'\n");
  std::filesystem::permissions(folder / program, std::filesystem::perms::owner_all);
  for (const char* name : {"Other.app", "sh", "", "/bin/sh"}) EXPECT_FALSE(workspace.launchApplication(name)) << name;
  EXPECT_TRUE(workspace.launchApplication("Some Editor.app"));
  for (int i = 0; i < 500 && !folder.exists("started"); ++i) runFor(10);
  EXPECT_TRUE(folder.exists("started"));
}

TEST(CommandLine, takesValuesInBothForms) {
  const CommandLine line =
      readCommandLine({"--root", "/a b", "--home=/日本", "--strings", "x", "--strings=none", "--engine", "none",
                       "--tour", "p", "--language=ja", "--open", "tQB8", "--bus-name=com.example.Other"});
  EXPECT_FALSE(line.error);
  EXPECT_EQ(line.product.root, "/a b");
  EXPECT_EQ(line.product.home, "/日本");
  EXPECT_EQ(line.product.strings, (std::vector<std::string>{"x", "none"}));
  EXPECT_EQ(line.product.engine, "none");
  EXPECT_EQ(line.product.language, "ja");
  EXPECT_EQ(line.tour, "p");
  EXPECT_EQ(line.open, "tQB8");
  EXPECT_EQ(line.busName, "com.example.Other");
  EXPECT_FALSE(line.product.paths);
}

TEST(CommandLine, takesOtherWordsAsFiles) {
  const CommandLine line = readCommandLine({"/a/x.whstyle", "--home", "/h", "日本 1.whstyle", "--", "--odd"});
  EXPECT_FALSE(line.error);
  ASSERT_EQ(line.files.size(), 3U);
  EXPECT_EQ(line.files[0], "/a/x.whstyle");
  EXPECT_EQ(line.files[1], absolutePath("日本 1.whstyle").text());
  EXPECT_EQ(line.files[2], absolutePath("--odd").text());
  EXPECT_EQ(line.product.home, "/h");
  EXPECT_FALSE(line.busName);
}

TEST(CommandLine, saysWhatItDoesNotUnderstand) {
  const auto line = [](const std::vector<std::string>& words) {
    return told(readCommandLine(words).error.value(), "tarvo-manager", textsToTell({.product = {.language = "en"}}));
  };
  EXPECT_TRUE(line({"--rot"}).starts_with("tarvo-manager: --rot: no such option; allowed: --root, --home, "));
  EXPECT_TRUE(line({"--rot"}).ends_with("; nearest: --root"));
  EXPECT_EQ(line({"--bus-name", "a"}),
            "tarvo-manager: --bus-name a: not a value for this; allowed: none, or a name with dots such as "
            "com.wordhaven.TarvoManager");
  EXPECT_EQ(line({"--root"}), "tarvo-manager: --root: its value is missing");
  EXPECT_EQ(line({"--language", "jp"}),
            "tarvo-manager: --language jp: not a value for this; allowed: en, ja; nearest: ja");
  EXPECT_TRUE(readCommandLine({"--version"}).version);
}

}  // namespace
}  // namespace tarvo
