// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/scripted_panels.h"

#include "console/script/memory_shell.h"
#include "platform/controls/windows.h"
#include "tests/console/script/surroundings.h"

namespace tarvo::test {
namespace {

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

}  // namespace
}  // namespace tarvo::test
