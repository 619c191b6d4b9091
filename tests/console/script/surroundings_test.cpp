// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/console/script/surroundings.h"
#include "console/script/scripted_engine.h"

// What is recorded and scripted around the program: files, engine, desktop.
namespace tarvo::test {
namespace {

TEST_F(Surroundings, writesAreNotedByNameOrPath) {
  files_.name(at("/styles"), "styles");
  files_.name(at("/settings"), "");
  for (const char* path : {"/styles", "/settings", "/other"}) EXPECT_TRUE(files_.write(at(path), "x"));
  EXPECT_FALSE(files_.write(at("/home/missing/x"), "x"));
  EXPECT_EQ(log(), "{\"wrote\":\"styles\"}\n{\"wrote\":\"root:/other\"}\n{\"writeFailed\":\"home:/missing/x\"}\n");
  EXPECT_EQ(log(), "");
}

TEST_F(Surroundings, nothingIsNotedWhileTheScriptActs) {
  recorder_.setOn(false);
  ASSERT_TRUE(files_.write(at("/a"), "x"));
  recorder_.setOn(true);
  EXPECT_EQ(log(), "");
}

TEST_F(Surroundings, theDiskRefusesAtAndBelowAPathUntilItIsAllowed) {
  using Operation = RecordedFiles::Operation;
  folder_.write("a/b/file", "old");
  folder_.write("ab", "old");
  for (const Operation operation :
       {Operation::write, Operation::copy, Operation::remove, Operation::make, Operation::list}) {
    files_.refuse(operation, at("/a"));
  }
  EXPECT_EQ(files_.write(at("/a/b/file"), "new").error(),
            (Failure{folder_ / "a/b/file", Attempt::write, std::make_error_code(std::errc::permission_denied)}));
  EXPECT_FALSE(files_.copy(at("/ab"), at("/a/copy")));
  EXPECT_FALSE(files_.copy(at("/a/b"), at("/copy")));
  EXPECT_FALSE(files_.remove(at("/a/b/file")));
  EXPECT_FALSE(files_.removeEmptyFolder(at("/a/b")));
  EXPECT_FALSE(files_.makeFolder(at("/a/new")));
  EXPECT_FALSE(files_.list(at("/a")).has_value());
  EXPECT_TRUE(files_.write(at("/ab"), "new"));
  EXPECT_EQ(folder_.read("a/b/file"), "old");
  files_.allow();
  EXPECT_TRUE(files_.write(at("/a/b/file"), "new"));
  EXPECT_TRUE(files_.list(at("/a")).has_value());
}

TEST_F(Surroundings, theEngineStartsUnreachableAndEmpty) {
  ScriptedEngine scripted;
  RecordedEngine engine(scripted, recorder_);
  EXPECT_FALSE(engine.checkConnectionWithCurl());
  EXPECT_FALSE(engine.checkStyle());
  Array styles;
  std::string stamp = "P9";
  EXPECT_FALSE(engine.requestStyle(styles, stamp));
  EXPECT_EQ(stamp, "P9");
  EXPECT_EQ(log(),
            "{\"engine\":\"checkConnectionWithCurl\",\"result\":false}\n{\"engine\":\"checkStyle\",\"result\":false}\n"
            "{\"engine\":\"requestStyle\",\"result\":false,\"stamp\":\"P9\",\"styles\":0}\n");
}

TEST_F(Surroundings, aRegistrationBecomesTheHeldSet) {
  ScriptedEngine scripted;
  RecordedEngine engine(scripted, recorder_);
  const Array records{PropertyList(Dictionary{}), PropertyList(Dictionary{})};
  std::string stamp;
  engine.sendRegistStyle({records, {}}, stamp);
  engine.sendRegistStyle({records, {}}, stamp);
  EXPECT_EQ(stamp, "U2");
  Array styles;
  EXPECT_FALSE(engine.requestStyle(styles, stamp));
  stamp = "";
  EXPECT_TRUE(engine.requestStyle(styles, stamp));
  EXPECT_EQ(styles.size(), 2U);
  EXPECT_EQ(stamp, "U2");
  scripted.holdNothing();
  EXPECT_FALSE(engine.checkStyle());
}

TEST_F(Surroundings, queuedProbesComeBeforeTheState) {
  ScriptedEngine engine;
  engine.setOnline(true);
  engine.queueProbes({false, true, false});
  EXPECT_FALSE(engine.checkConnectionWithCurl());
  EXPECT_TRUE(engine.checkConnectionWithCurl());
  EXPECT_FALSE(engine.checkConnectionWithCurl());
  EXPECT_TRUE(engine.checkConnectionWithCurl());
}

TEST_F(Surroundings, theDesktopIsOnlyNoted) {
  RecordedWorkspace workspace(recorder_);
  EXPECT_TRUE(workspace.openFile(at("/home/a")));
  EXPECT_TRUE(workspace.openAddress("https://support.example/"));
  EXPECT_TRUE(workspace.launchApplication("Script Editor"));
  workspace.running = {ProductPath("/Applications/Mail.app")};
  EXPECT_EQ(workspace.launchedApplications(), std::vector{ProductPath("/Applications/Mail.app")});
  EXPECT_EQ(log(),
            "{\"opened\":\"home:/a\"}\n{\"address\":\"https://support.example/\"}\n{\"launched\":\"Script Editor\"}\n");
}

}  // namespace
}  // namespace tarvo::test
