// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/recorder.h"

#include <gtest/gtest.h>

#include "console/script/manual_run_loop.h"
#include "console/script/memory_shell.h"
#include "console/script/scripted_engine.h"
#include "console/script/scripted_panels.h"
#include "platform/controls/windows.h"
#include "platform/posix/posix_files.h"
#include "tests/support/temporary_folder.h"

// The surroundings of a scenario, one by one.
namespace tarvo::test {
namespace {

class Surroundings : public testing::Test {
 protected:
  std::string log() {
    std::string all;
    for (const Json& event : recorder_.take()) all += writeJson(event) + "\n";
    return all;
  }
  DiskPath at(const std::string& path) const { return DiskPath(folder_.path() + path); }
  const TemporaryFolder folder_;
  Locations locations_{folder_.path(), folder_ / "home"};
  PosixFiles disk_{locations_};
  Recorder recorder_{locations_};
  RecordedFiles files_{disk_, recorder_};
};

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

TEST_F(Surroundings, alertsTakeTheirAnswersInOrderElseTheDefaultButton) {
  MemoryShell shell;
  ScriptedPanels panels(recorder_, shell);
  panels.answerAlert(1);
  EXPECT_EQ(panels.runAlertPanel({"T", "M", {"OK", "Cancel"}}), 1);
  EXPECT_EQ(panels.runAlertPanel({"T", "M", {"OK", "Cancel"}}), 0);
  EXPECT_FALSE(panels.hasAnswers());
  EXPECT_EQ(panels.failure(), "");
  EXPECT_EQ(log(),
            "{\"alert\":{\"answer\":2,\"buttons\":[\"OK\",\"Cancel\"],\"message\":\"M\",\"title\":\"T\"}}\n"
            "{\"alert\":{\"answer\":1,\"buttons\":[\"OK\",\"Cancel\"],\"message\":\"M\",\"title\":\"T\"}}\n");
}

TEST_F(Surroundings, anAlertSheetNamesItsWindow) {
  struct Outlet : Outlets {
    Window window{*this, "myWindow"};
    Outlet() : Outlets("manager") {}
  } outlets;
  MemoryShell shell;
  ScriptedPanels panels(recorder_, shell);
  int answered = -1;
  panels.beginAlertSheet(outlets.window, {"T", "M", {"OK"}}, [&](int button) { answered = button; });
  EXPECT_EQ(answered, 0);
  EXPECT_FALSE(panels.isAlertUp());
  EXPECT_EQ(log(),
            "{\"alert\":{\"answer\":1,\"buttons\":[\"OK\"],\"message\":\"M\",\"over\":\"manager.myWindow\","
            "\"title\":\"T\"}}\n");
}

TEST_F(Surroundings, anOpenPanelWithoutAnAnswerFailsTheScript) {
  MemoryShell shell;
  ScriptedPanels panels(recorder_, shell);
  panels.answerSave(at("/other/x"));
  EXPECT_FALSE(panels.runOpenPanel({"Import", {}, false}));
  EXPECT_EQ(panels.failure(), "nothing answers the open panel \"Import\"");
}

TEST_F(Surroundings, openPanelsTakeTheirAnswersInOrder) {
  MemoryShell shell;
  ScriptedPanels panels(recorder_, shell);
  panels.answerSave(at("/home/for a save panel"));
  panels.answerOpen(at("/home/a.x"));
  panels.answerCancel();
  panels.answerOpen(at("/b"));
  EXPECT_EQ(panels.runOpenPanel({"T", {"x"}, false}), at("/home/a.x"));
  EXPECT_EQ(panels.runOpenPanel({"", {}, false}), std::nullopt);
  EXPECT_EQ(panels.runOpenPanel({"F", {}, true}), at("/b"));
  EXPECT_TRUE(panels.hasAnswers());
  EXPECT_EQ(log(),
            "{\"panel\":{\"answer\":\"home:/a.x\",\"kind\":\"open\",\"title\":\"T\",\"types\":[\"x\"]}}\n"
            "{\"panel\":{\"answer\":null,\"kind\":\"open\"}}\n"
            "{\"panel\":{\"answer\":\"root:/b\",\"kind\":\"folder\",\"title\":\"F\"}}\n");
}

class SavePanels : public Surroundings {
 protected:
  struct Outlet : Outlets {
    Window window{*this, "myWindow"}, other{*this, "other"};
    Outlet() : Outlets("manager") {}
  } outlets_;
  MemoryShell shell_;
  ScriptedPanels panels_{recorder_, shell_};
  std::string ended_;
  void begin(Window& host) {
    panels_.beginSavePanel(host, {"", "whstyle", at("/home"), "Beta"}, [this](int code, const DiskPath& path) {
      ended_ += std::to_string(code) + locations_.shown(path) + ';';
    });
  }
};

TEST_F(SavePanels, takeAQueuedAnswerAtOnceAndAddTheirType) {
  panels_.answerOpen(at("/for an open panel"));
  panels_.answerSave(at("/home/a.b"));
  panels_.answerCancel();
  panels_.answerSave(at("/x.WHStyle"));
  for (int i = 0; i < 3; ++i) begin(outlets_.window);
  EXPECT_EQ(ended_, "1home:/a.b.whstyle;0;1root:/x.WHStyle;");
  const std::string rest =
      R"("folder":"home:/","kind":"save","name":"Beta","over":"manager.myWindow","types":["whstyle"]}})"
      "\n";
  EXPECT_EQ(log(), "{\"panel\":{\"answer\":\"home:/a.b.whstyle\"," + rest + "{\"panel\":{\"answer\":null," + rest +
                       "{\"panel\":{\"answer\":\"root:/x.WHStyle\"," + rest);
}

TEST_F(SavePanels, stayUpUntilTheyAreAnswered) {
  begin(outlets_.window);
  EXPECT_EQ(ended_, "");
  EXPECT_EQ(log(),
            R"({"panel":{"folder":"home:/","kind":"save","name":"Beta","over":"manager.myWindow","types":["whstyle"]}})"
            "\n");
  panels_.answerSave(at("/x/Beta"));
  EXPECT_EQ(ended_, "1root:/x/Beta.whstyle;");
  EXPECT_EQ(log(), "{\"answer\":\"root:/x/Beta.whstyle\",\"panelEnded\":\"save\"}\n");
  begin(outlets_.other);
  panels_.answerCancel();
  EXPECT_EQ(ended_, "1root:/x/Beta.whstyle;0;");
  EXPECT_NE(log().find("{\"answer\":null,\"panelEnded\":\"save\"}"), std::string::npos);
  EXPECT_FALSE(panels_.hasAnswers());
}

TEST_F(SavePanels, areAnsweredFromTheLastOneOn) {
  begin(outlets_.window);
  begin(outlets_.other);
  panels_.answerSave(at("/x"));
  EXPECT_EQ(ended_, "1root:/x.whstyle;");
  panels_.answerCancel();
  EXPECT_EQ(ended_, "1root:/x.whstyle;0;");
  panels_.answerCancel();
  EXPECT_TRUE(panels_.hasAnswers()) << "kept for the next panel";
}

TEST_F(SavePanels, goWithTheirProgram) {
  begin(outlets_.window);
  panels_.dropSavePanels();
  panels_.answerCancel();
  EXPECT_EQ(ended_, "");
  EXPECT_TRUE(panels_.hasAnswers()) << "nothing is up that could take it";
}

TEST_F(Surroundings, theDesktopIsOnlyNoted) {
  RecordedWorkspace workspace(recorder_);
  workspace.openFile(at("/home/a"));
  workspace.openAddress("https://support.example/");
  workspace.launchApplication("Script Editor");
  workspace.running = {ProductPath("/Applications/Mail.app")};
  EXPECT_EQ(workspace.launchedApplications(), std::vector{ProductPath("/Applications/Mail.app")});
  EXPECT_EQ(log(),
            "{\"opened\":\"home:/a\"}\n{\"address\":\"https://support.example/\"}\n{\"launched\":\"Script Editor\"}\n");
}

TEST(ManualRunLoop, timersFireWhenTheirTimeHasCome) {
  ManualRunLoop loop;
  std::string order;
  loop.after(2, [&] { order += 'b'; });
  loop.after(1, [&] {
    order += 'a';
    loop.after(1, [&] { order += 'c'; });
  });
  const RunLoop::Timer gone = loop.after(1, [&] { order += 'x'; });
  loop.cancel(gone);
  loop.settle();
  EXPECT_EQ(order, "");
  loop.advance(1.999);
  EXPECT_EQ(order, "a");
  loop.advance(0.001);
  EXPECT_EQ(order, "abc");
}

TEST(ManualRunLoop, postedCallsRunInOrderAndMayPost) {
  ManualRunLoop loop;
  std::string order;
  loop.post([&] {
    order += '1';
    loop.post([&] { order += '3'; });
  });
  loop.post([&] { order += '2'; });
  EXPECT_EQ(order, "");
  loop.settle();
  EXPECT_EQ(order, "123");
}

}  // namespace
}  // namespace tarvo::test
