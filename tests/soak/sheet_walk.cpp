// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/soak/sheet_walk.h"

#include <array>
#include <filesystem>
#include <set>

#include "tests/soak/list_edits.h"

namespace tarvo::test {

namespace {

constexpr std::array names{"", " ", "A", "a.b", "Alpha", "Neu", "日本"};
constexpr const char* styleFile = "Library/Preferences/Wordhaven/TarvoStyle2009.plist";

}  // namespace

SheetWalk::SheetWalk(unsigned seed)
    : root_("addins", placeOfSoaks()),
      session_({.product = scenarioProduct({.options = {"--strings", "none"}, .resources = "Bundle"}, root_),
                .folder = DiskPath(root_.home())},
               shell_, clock_),
      random_(seed) {
  const std::filesystem::path styles = root_.home() + "/" + styleFile;
  std::filesystem::create_directories(styles.parent_path());
  std::filesystem::copy_file(scenarioFolder() + "/fixtures/root4.plist", styles);
  shell_.windowHost().step = [this] {
    left_ > 0 ? step() : leaveModalRun();
    return true;
  };
}

Interface& SheetWalk::interface() { return program().interface(); }

void SheetWalk::start() {
  const bool isOnline = upTo(2) == 0;
  session_.engine().setOnline(isOnline);
  if (!isOnline) session_.panels().answerAlert(upTo(2));  // to go on without the service, or not
  session_.start();
  expect(session_.phase() == ScenarioSession::Phase::running, "no program");
  session_.recorder().take();
  clock_.settle();
  ++starts_;
}

std::string SheetWalk::walk(int steps) {
  left_ = steps;
  while (left_ > 0 && wrong_.empty()) {
    if (session_.phase() != ScenarioSession::Phase::running) start();
    if (wrong_.empty()) step();
  }
  if (session_.phase() != ScenarioSession::Phase::running) return wrong_;
  constexpr int enough = 1000;  // far more than can wait
  for (int ended = 0; endOneSheet(); ++ended) {
    clock_.settle();
    look();
    expect(ended < enough, "sheets without end");
    if (!wrong_.empty()) return wrong_;
  }
  const Covers& covers = program().windows().covers();
  expect(!covers.isAnythingUp() && covers.waiting() == 0, "something is left");
  expect(!program().rooms().flags.gMenuControllFlag, "the menus stay restricted");
  return wrong_;
}

void SheetWalk::step() {
  --left_;
  const std::size_t waiting = program().windows().covers().waiting();
  act();
  if (session_.phase() != ScenarioSession::Phase::running) return;
  clock_.settle();
  if (program().windows().covers().waiting() > waiting) ++sheetsThatWaited_;
  look();
}

void SheetWalk::act() {
  switch (upTo(8)) {
    case 0: return knock();
    case 1: return askBehindTheSheets();
    case 2:
      last_ = "the end of a sheet";
      endOneSheet();
      return;
    case 3: last_ = "two seconds"; return clock_.advance(2);
    default: return workControl();
  }
}

void SheetWalk::knock() {
  last_ = "a request from outside";
  switch (upTo(4)) {
    case 0: return program().requests().eventText("tQB8");
    case 1: return program().requests().event(std::nullopt);  // shows the Office pane
    case 2: return program().requests().openStyleFile(DiskPath(root_.home()) / styleFile);
    default: return program().notifications().post("SendPlistNoti");
  }
}

// As a shortcut does, whatever covers the window.
void SheetWalk::askBehindTheSheets() {
  last_ = "a shortcut";
  if (program().windows().modalWindow() != nullptr) return;
  upTo(2) == 0 ? program().rooms().naming.editStyleName() : program().rooms().newDictionary.newUD(10 + upTo(4));
}

void SheetWalk::workControl() {
  Interface& all = interface();
  const std::vector<Control*> openers{
      &all.newDictionary.newEJUDMenu,  &all.newDictionary.newJETMAMenu, &all.newDictionary.ejUDNewButton,
      &all.exchange.exportMenu,        &all.exchange.exportWindowMenu,  &all.exchange.exportButton,
      &all.naming.StyleNameEditButton, &all.lists.ejLoadDicButton,      &all.picker.newUDButton,
      &all.manager.officeAddinMenu,    &all.manager.styleManagerMenu,   &all.style.quitMenu};
  std::vector<Control*> reachable = upTo(3) == 0 ? all.controls() : openers;
  std::erase_if(reachable, [this](const Control* control) { return !program().windows().isReachable(*control); });
  if (reachable.empty()) return;
  Control& control = *reachable[static_cast<std::size_t>(upTo(static_cast<int>(reachable.size())))];
  last_ = control.name();
  Hand& hand = shell_.hand();
  session_.panels().answerOpen(DiskPath(root_.home()) / styleFile);
  switch (control.kind()) {
    case Control::Kind::button: return hand.press(static_cast<Button&>(control));
    case Control::Kind::menu: return hand.choose(static_cast<MenuItem&>(control));
    case Control::Kind::field:
      return hand.type(static_cast<TextField&>(control), names[static_cast<std::size_t>(upTo(names.size()))]);
    default: return;  // what opens and ends no sheet
  }
}

// One that the user could end now; a panel ends where it stands.
bool SheetWalk::endOneSheet() {
  const std::vector<Covers::Sheet>& sheets = program().windows().covers().sheets();
  if (sheets.empty()) return false;
  Interface& all = interface();
  for (Button* button : {&all.naming.snCancelButton, &all.newDictionary.NewDicCancelButton, &all.connection.sslOKButton,
                         &all.picker.newDicCancelButton}) {
    if (!program().windows().isReachable(*button)) continue;
    shell_.hand().press(*button);
    return true;
  }
  for (const Covers::Sheet& sheet : sheets) {
    if (sheet.window != nullptr) continue;
    upTo(2) == 0 ? session_.panels().answerCancel() : session_.panels().answerSave(DiskPath(root_.home()) / "exported");
    return true;
  }
  return false;
}

void SheetWalk::leaveModalRun() {
  if (endOneSheet()) return clock_.settle();
  Interface& all = interface();
  for (Button* button : {&all.picker.cancelButton, &all.exchange.exportCloseButton, &all.manager.displayCloseButton,
                         &all.earlier.earlierStylesCloseButton}) {
    if (program().windows().isReachable(*button)) return shell_.hand().press(*button);
  }
}

void SheetWalk::look() {
  const Windows& windows = program().windows();
  const bool restricts = windows.hostOf(interface().naming.styleNameWindow) != nullptr ||
                         windows.hostOf(interface().newDictionary.NewDicWindow) != nullptr;
  expect(program().rooms().flags.gMenuControllFlag == restricts, "the menus do not go with the sheet");
  std::set<const Window*> hosts;
  for (const Covers::Sheet& sheet : program().windows().covers().sheets()) {
    expect(hosts.insert(sheet.host).second, "two sheets over one window");
  }
  expect(session_.panels().failure().empty(), "a panel without an answer");
}

void SheetWalk::expect(bool holds, const char* what) {
  if (!holds && wrong_.empty()) wrong_ = std::string(what) + " after " + last_;
}

}  // namespace tarvo::test
