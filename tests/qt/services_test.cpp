// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QEventLoop>
#include <QTimer>
#include <filesystem>
#include <memory>

#include "platform/locations.h"
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

TEST(QtWorkspace, anApplicationIsStartedFromTheFoldersForApplications) {
  const test::TemporaryFolder root;
  const std::string program = "Applications/Utilities/Script Editor.app/Contents/MacOS/editor";
  root.write(program, "#!/bin/sh\n: > \"$(dirname \"$0\")/../started\"\n");
  std::filesystem::permissions(root / program, std::filesystem::perms::owner_all);
  const Locations locations(root.path(), root / "home");
  QtWorkspace workspace(locations, [] { return std::vector<std::string>(); });
  workspace.launchApplication("Nowhere.app");
  workspace.launchApplication("sh");  // no bundle, though a program has that name
  workspace.launchApplication("Script Editor.app");
  const std::string started = root / "Applications/Utilities/Script Editor.app/Contents/started";
  for (int i = 0; i < 500 && !std::filesystem::exists(started); ++i) runFor(10);
  EXPECT_TRUE(std::filesystem::exists(started));
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

TEST(CommandLine, takesValuesInBothForms) {
  const CommandLine line = readCommandLine({"--root", "/a b", "--home=/日本", "--strings", "x", "--strings=none",
                                            "--engine", "none", "--tour", "p", "--language=ja"});
  EXPECT_EQ(line.problem, "");
  EXPECT_EQ(line.product.root, "/a b");
  EXPECT_EQ(line.product.home, "/日本");
  EXPECT_EQ(line.product.strings, (std::vector<std::string>{"x", "none"}));
  EXPECT_EQ(line.product.engine, "none");
  EXPECT_EQ(line.product.language, "ja");
  EXPECT_EQ(line.tour, "p");
  EXPECT_FALSE(line.product.paths);
}

TEST(CommandLine, saysWhatItDoesNotUnderstand) {
  EXPECT_EQ(readCommandLine({"--wrong"}).problem, "unknown option --wrong");
  EXPECT_EQ(readCommandLine({"file"}).problem, "unknown option file");
  EXPECT_EQ(readCommandLine({"--root"}).problem, "--root needs a value");
  EXPECT_EQ(readCommandLine({"--language", "fr"}).problem, "--language is en or ja");
  EXPECT_TRUE(readCommandLine({"--version"}).version);
}

}  // namespace
}  // namespace tarvo
