// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/console/script/script_text.h"

// How scripts fail: status 4, and one line that says where and why.
namespace tarvo::test {
namespace {

struct Case {
  const char* name;
  const char* lines;  // from the third line on, after a start
  const char* message;
};

class FailingScript : public testing::TestWithParam<Case> {};

TEST_P(FailingScript, saysWhereAndWhy) {
  const ToolResult result = runText(std::string(prepare) + GetParam().lines + "\n");
  EXPECT_EQ(result.err, std::string("-:") + GetParam().message + "\n");
  EXPECT_EQ(result.status, 4);
}

INSTANTIATE_TEST_SUITE_P(
    Console, FailingScript,
    testing::Values(
        Case{"unknownCommand", "frobnicate", "3: there is no command frobnicate"},
        Case{"unknownControl", "press nothing", "3: there is no control nothing"},
        Case{"namesAreCaseSensitive", "choose stylepopup 1", "3: there is no control stylepopup"},
        Case{"unknownOwner", "choose picker.stylePopup 1", "3: there is no control picker.stylePopup"},
        Case{"otherKind", "press stylePopup", "3: stylePopup is no control for this command"},
        Case{"disabledControl", "press StyleNameEditButton", "3: StyleNameEditButton is not reachable"},
        Case{"hiddenPage", "choose ejOption1Popup 1", "3: ejOption1Popup is not reachable"},
        Case{"hiddenPane", "press OA\nchoose stylePopup 1", "4: stylePopup is not reachable"},
        Case{"hiddenWindow", "press displayCloseButton", "3: displayCloseButton is not reachable"},
        Case{"notLaidOutInAHiddenWindow", "press ejEditTDButton", "3: ejEditTDButton is not reachable"},
        Case{"notLaidOutBehindThePicker", "press ejLoadDicButton\ndeselect ejUDTable", "4: ejUDTable is not reachable"},
        Case{"notLaidOutBehindASheet", "menu newEJUDMenu\ndeselect ejUDTable", "4: ejUDTable is not reachable"},
        Case{"wordBehindTheIndexOfAStyle", "style 0 1", "3: the line holds more than its command takes: 1"},
        Case{"itemLeftOutOfTheToolbar", "toolbar order MT\npress OA", "4: OA is not reachable"},
        Case{"divider", "choose stylePopup 2", "3: style.stylePopup has no item 2 that can be chosen"},
        Case{"missingItem", "choose stylePopup 4", "3: style.stylePopup has no item 4 that can be chosen"},
        Case{"missingTitle", "choose stylePopup title Gamma", "3: style.stylePopup has no item \"Gamma\""},
        Case{"titleOfTheDivider", "choose stylePopup title keyNameSeparator",
             "3: style.stylePopup has no item \"keyNameSeparator\""},
        Case{"missingTag", "choose ejEditPopup tag 7", "3: style.ejEditPopup has no item with tag 7"},
        Case{"disabledSegment", "segment TEAppSeg3 2", "3: style.TEAppSeg3 has no segment 2 that can be clicked"},
        Case{"missingPage", "tab directionTab 5", "3: style.directionTab has no page 5"},
        Case{"missingRow", "select ejTDTable 3", "3: style.ejTDTable has no row 3"},
        Case{"unknownToolbarItem", "toolbar order XX", "3: the toolbar has no item XX"},
        Case{"windowWithoutACloseBox", "close toolbar", "3: toolbar is no control for this command"},
        Case{"noNumber", "choose stylePopup one", "3: one is not an index"},
        Case{"missingWord", "choose stylePopup", "3: the line lacks an item"},
        Case{"wordTooMany", "press OA now", "3: the line holds more than its command takes: now"},
        Case{"openQuotation", "post \"open", "3: a quotation is not closed"},
        Case{"secondStart", "start", "3: start cannot be used while the program runs"},
        Case{"gestureAfterTheEnd", "quit\npress OA", "4: press cannot be used after the program has ended"},
        Case{"answerAfterTheEnd", "quit\nanswer alert 1", "4: answer cannot be used after the program has ended"},
        Case{"gestureAfterAKill", "kill\npress OA", "4: press cannot be used before a start"},
        Case{"showAfterAKill", "kill\nshow stylePopup", "4: show cannot be used before a start"},
        Case{"failedExpectation", "default a 1\ndefault a\nexpect {\"default\":\"a\",\"value\":true}",
             "5: expected {\"default\":\"a\",\"value\":true}, got {\"default\":\"a\",\"value\":1}"},
        Case{"nothingPrinted", "log\nlog\nexpect {\"beep\":true}", "5: expected {\"beep\":true}, but nothing is left"},
        Case{"lineLeft", "default a\nexpect end", "4: expected the end, got {\"default\":\"a\",\"value\":null}"},
        Case{"nowhere", "log\nexpect any {\"beep\":true}",
             "4: expected {\"beep\":true} somewhere, but it is not there"},
        Case{"noJson", "log\nexpect {beep}", "4: no JSON is expected: {beep}"},
        Case{"answerLeftOver", "answer alert 1", "3: an answer is left over"},
        Case{"missingButton", "answer alert 2\nmenu aboutMenu", "4: the alert has no button 2"},
        Case{"unknownAnswer", "answer beep", "3: there is no answer to beep"},
        Case{"answerWithoutAPath", "answer open", "3: the line lacks a path"},
        Case{"openAnswerLeftOver", "answer open x", "3: an answer is left over"},
        Case{"saveAnswerLeftOver", "answer save x", "3: an answer is left over"},
        Case{"cancelLeftOver", "answer cancel", "3: an answer is left over"},
        Case{"halfAByte", "event 740", "3: 740 is no whole number of bytes"},
        Case{"noHexadecimal", "event 7g", "3: 7g is not hexadecimal"},
        Case{"eventWithoutBytes", "event", "3: the line lacks bytes"},
        Case{"eventOfNothingWithAWord", "event-none 74", "3: the line holds more than its command takes: 74"},
        Case{"eventTextOfTwoWords", "event-text tQB8 tTX8", "3: the line holds more than its command takes: tTX8"},
        Case{"controlBehindASavePanel", "menu exportMenu\npress OA", "4: OA is not reachable"},
        Case{"windowBehindASavePanel", "menu exportMenu\nmove myWindow 1 1", "4: myWindow is not reachable"},
        Case{"exportWindowBehindItsSavePanel", "menu exportWindowMenu\npress exportButton\npress exportCloseButton",
             "5: exportCloseButton is not reachable"},
        Case{"endWithASavePanel", "menu exportMenu", "3: the script ends with a save panel over manager.myWindow"},
        Case{"openPanelWithoutAnAnswer", "answer save x\nmenu importMenu",
             "4: nothing answers the open panel \"Select Import Style File\""},
        Case{"importOutsideItsPane", "press OA\nmenu importMenu", "4: importMenu is not reachable"},
        Case{"unknownOperation", "call style.nothing", "3: there is no operation style.nothing"},
        Case{"argumentsOfAnOperation", "call style.setSelection", "3: style.setSelection takes 1 arguments"},
        Case{"noValue", "default a {", "3: { is no value of a setting"},
        Case{"nullIsNoValue", "default a null", "3: null is no value of a setting"},
        Case{"refusedByTheDisk", "file remove root:/nothing",
             "3: the disk refused that for root:/nothing: No such file or directory"},
        Case{"unknownFileCommand", "file burn root:/x", "3: a file cannot be told to burn"},
        Case{"unknownRefusal", "file refuse burn root:/x", "3: the disk cannot refuse to burn"},
        Case{"noStylesToHold", "engine holds fixtures/no-styles.plist U0",
             "3: there are no styles in " TARVO_SOURCE_DIR "/tests/scenarios/fixtures/no-styles.plist"},
        Case{"mainWindowBehindThePicker", "press ejLoadDicButton\npress OA", "4: OA is not reachable"},
        Case{"rowThatAFilterHides", "press ejLoadDicButton\ntype filterField none\ntick techDicTable 0 on",
             "5: picker.techDicTable does not show row 0"},
        Case{"selectedRowThatAFilterHides", "press ejLoadDicButton\ntype filterField none\nselect techDicTable 0",
             "5: picker.techDicTable does not show row 0"},
        Case{"endInsideThePicker", "press ejLoadDicButton",
             "3: the script ends inside the modal run of picker.myWindow"},
        Case{"controlBehindASheet", "menu newEJUDMenu\nselect ejTDTable 0", "4: ejTDTable is not reachable"},
        Case{"commandBehindASheet", "menu newEJUDMenu\nmenu newJEUDMenu", "4: newJEUDMenu is not reachable"},
        Case{"endWithASheet", "menu newEJUDMenu", "3: the script ends with the sheet style.NewDicWindow up"},
        Case{"buttonOfAnotherListPage", "tab ejListTab UDTab\npress ejLoadDicButton",
             "4: ejLoadDicButton is not reachable"},
        Case{"unknownEngineCommand", "engine broken", "3: the engine cannot be broken"}),
    [](const testing::TestParamInfo<Case>& failing) { return failing.param.name; });

TEST(FailingScript, cannotActBeforeAStart) {
  for (const char* line : {"quit", "kill", "press OA", "show stylePopup", "style 0", "call style.getOSVersion",
                           "post ChangeToolbar", "advance 1", "menu quitMenu"}) {
    const ToolResult result = runText(std::string(line) + "\n");
    const std::string word = std::string(line).substr(0, std::string(line).find(' '));
    EXPECT_EQ(result.err, "-:1: " + word + " cannot be used before a start\n");
    EXPECT_EQ(result.status, 4);
  }
}

std::string smallScreen() { return "screen 800 600\ndefault NoDialogState 0\n" + std::string(prepare); }

TEST(FailingScript, cannotEndInsideAModalRun) {
  const ToolResult result = runText(smallScreen());
  EXPECT_EQ(result.err, "-:4: the script ends inside the modal run of manager.displayAlertWindow\n");
  EXPECT_EQ(result.status, 4);
}

TEST(FailingScript, reachesOnlyTheModalWindow) {
  const std::pair<const char*, const char*> cases[] = {{"press OA", "OA is not reachable"},
                                                       {"choose stylePopup 1", "stylePopup is not reachable"},
                                                       {"toolbar hide", "manager.myWindow is not reachable"},
                                                       {"menu quitMenu", "quitMenu is not reachable"},
                                                       {"quit", "style.quitMenu is not reachable"},
                                                       {"kill", "a modal window is up"}};
  for (const auto& [line, message] : cases) {
    EXPECT_EQ(runText(smallScreen() + line + "\n").err, std::string("-:5: ") + message + "\n");
  }
}

TEST(FailingScript, failsInsideAModalRunAsOutside) {
  const ToolResult result = runText(smallScreen() + "frobnicate\npress displayCloseButton\n");
  EXPECT_EQ(result.err, "-:5: there is no command frobnicate\n");
  EXPECT_EQ(result.status, 4);
}

TEST(FailingScript, cannotScriptAnotherEngine) {
  EXPECT_EQ(runText("engine online\n", {"--engine", "none"}).err, "-:1: the engine is not the scripted one\n");
}

TEST(FailingScript, namesItsFile) {
  const TemporaryFolder folder;
  folder.write("a script", "# a comment\n\nfrobnicate\n");
  const ToolResult result = runTool({"--root", folder.path(), "run", "a script"}, folder.path());
  EXPECT_EQ(result.err, "a script:3: there is no command frobnicate\n");
  EXPECT_EQ(result.status, 4);
}

}  // namespace
}  // namespace tarvo::test
