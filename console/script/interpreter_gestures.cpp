// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <array>

#include "app/program.h"
#include "console/script/hand.h"
#include "console/script/interpreter.h"
#include "console/script/scenario_session.h"
#include "console/script/script_commands.h"
#include "platform/text/text_rules.h"

// What a user can do: each command finds its control, asks whether it may be reached, and hands over to the hand.
namespace tarvo {

namespace {

template <class T>
constexpr Control::Kind kindOf = Control::Kind::button;
template <>
constexpr Control::Kind kindOf<PopUpButton> = Control::Kind::popup;
template <>
constexpr Control::Kind kindOf<SegmentedControl> = Control::Kind::segments;
template <>
constexpr Control::Kind kindOf<TabView> = Control::Kind::tabs;
template <>
constexpr Control::Kind kindOf<CheckBox> = Control::Kind::check;
template <>
constexpr Control::Kind kindOf<TextField> = Control::Kind::field;
template <>
constexpr Control::Kind kindOf<TableView> = Control::Kind::table;
template <>
constexpr Control::Kind kindOf<MenuItem> = Control::Kind::menu;
template <>
constexpr Control::Kind kindOf<Window> = Control::Kind::window;
template <>
constexpr Control::Kind kindOf<Toolbar> = Control::Kind::toolbar;

// The control that the line's next word names: of the kind that the command works, and within reach.
template <class T>
T& take(Interpreter& interpreter, ScriptLine& line) {
  const std::string name = takeWord(line, "a control");
  if (interpreter.control(name).kind() != kindOf<T>) throw ScriptError(name + " is no control for this command");
  return static_cast<T&>(interpreter.reachable(name));
}

Hand& hand(Interpreter& interpreter) { return interpreter.session().shell().hand(); }

void press(Interpreter& interpreter, ScriptLine& line) {
  Button& button = take<Button>(interpreter, line);
  takeEnd(line);
  hand(interpreter).press(button);
}

int findItem(const PopUpButton& popup, ScriptLine& line) {
  const std::string how = takeWord(line, "an item");
  if (how == "title") {
    const std::string title = takeWord(line, "a title");
    for (std::size_t i = 0; i < popup.items().size(); ++i) {
      if (!popup.items()[i].separator && popup.items()[i].title == title) return static_cast<int>(i);
    }
    throw NotReachable(popup.name() + " has no item \"" + title + '"');
  }
  if (how == "tag") {
    const int tag = takeInteger(line, "a tag");
    for (std::size_t i = 0; i < popup.items().size(); ++i) {
      if (popup.items()[i].tag == tag) return static_cast<int>(i);
    }
    throw NotReachable(popup.name() + " has no item with tag " + std::to_string(tag));
  }
  ScriptLine index(how);
  return takeInteger(index, "an index");
}

void choose(Interpreter& interpreter, ScriptLine& line) {
  PopUpButton& popup = take<PopUpButton>(interpreter, line);
  const int index = findItem(popup, line);
  takeEnd(line);
  hand(interpreter).choose(popup, index);
}

void segment(Interpreter& interpreter, ScriptLine& line) {
  SegmentedControl& control = take<SegmentedControl>(interpreter, line);
  const int index = takeInteger(line, "a segment");
  takeEnd(line);
  hand(interpreter).click(control, index);
}

// A page by its number or its identifier.
int findPage(const TabView& tab, const std::string& word) {
  for (std::size_t i = 0; i < tab.pages().size(); ++i) {
    if (tab.pages()[i].identifier == word) return static_cast<int>(i);
  }
  ScriptLine number(word);
  return takeInteger(number, "a page");
}

void tab(Interpreter& interpreter, ScriptLine& line) {
  TabView& control = take<TabView>(interpreter, line);
  const int page = findPage(control, takeWord(line, "a page"));
  takeEnd(line);
  hand(interpreter).selectPage(control, page);
}

void check(Interpreter& interpreter, ScriptLine& line) {
  CheckBox& box = take<CheckBox>(interpreter, line);
  const bool on = takeChoice(line, "on", "off");
  takeEnd(line);
  hand(interpreter).check(box, on);
}

void type(Interpreter& interpreter, ScriptLine& line) {
  TextField& field = take<TextField>(interpreter, line);
  const std::string text = takeWord(line, "a text");
  takeEnd(line);
  hand(interpreter).type(field, text);
}

void tick(Interpreter& interpreter, ScriptLine& line) {
  TableView& table = take<TableView>(interpreter, line);
  const int row = takeInteger(line, "a row");
  const bool on = takeChoice(line, "on", "off");
  takeEnd(line);
  hand(interpreter).tick(table, row, on);
}

void select(Interpreter& interpreter, ScriptLine& line) {
  TableView& table = take<TableView>(interpreter, line);
  std::vector<int> rows{takeInteger(line, "a row")};
  while (!line.atEnd()) rows.push_back(takeInteger(line, "a row"));
  hand(interpreter).select(table, rows);
}

void deselect(Interpreter& interpreter, ScriptLine& line) {
  TableView& table = take<TableView>(interpreter, line);
  takeEnd(line);
  hand(interpreter).select(table, {});
}

void drag(Interpreter& interpreter, ScriptLine& line) {
  TableView& table = take<TableView>(interpreter, line);
  std::vector<int> rows;
  for (std::string word = takeWord(line, "a row"); word != "to"; word = takeWord(line, "\"to\"")) {
    ScriptLine number(word);
    rows.push_back(takeInteger(number, "a row"));
  }
  TableView& target = take<TableView>(interpreter, line);
  const int row = takeInteger(line, "a row");
  const bool above = takeChoice(line, "above", "on");
  takeEnd(line);
  hand(interpreter).drag(table, rows, target, row, above ? DropOperation::above : DropOperation::on);
}

void menu(Interpreter& interpreter, ScriptLine& line) {
  MenuItem& item = take<MenuItem>(interpreter, line);
  takeEnd(line);
  hand(interpreter).choose(item);
}

void move(Interpreter& interpreter, ScriptLine& line) {
  Window& window = take<Window>(interpreter, line);
  const auto x = static_cast<float>(takeNumber(line, "a number"));
  const auto y = static_cast<float>(takeNumber(line, "a number"));
  takeEnd(line);
  hand(interpreter).move(window, x, y);
}

void close(Interpreter& interpreter, ScriptLine& line) {
  Window& window = take<Window>(interpreter, line);
  takeEnd(line);
  hand(interpreter).close(window);
}

// The bar itself is out of sight when it is hidden: its window has to be in reach.
void toolbar(Interpreter& interpreter, ScriptLine& line) {
  ManagerOutlets& outlets = interpreter.session().program().interface().manager;
  interpreter.reachable(outlets.myWindow.name());
  const std::string word = takeWord(line, "show, hide or order");
  if (word == "order") {
    hand(interpreter).orderToolbar(outlets.toolbar, line.words());
  } else if (word == "show" || word == "hide") {
    takeEnd(line);
    hand(interpreter).showToolbar(outlets.toolbar, word == "show");
  } else {
    throw ScriptError("the toolbar cannot " + word);
  }
}

void quit(Interpreter& interpreter, ScriptLine& line) {
  takeEnd(line);
  MenuItem& item = interpreter.session().program().interface().style.quitMenu;
  interpreter.reachable(item.name());
  hand(interpreter).choose(item);
}

constexpr unsigned running = ScriptCommand::running;
constexpr std::array commands{ScriptCommand{"press", running, press},       ScriptCommand{"choose", running, choose},
                              ScriptCommand{"segment", running, segment},   ScriptCommand{"tab", running, tab},
                              ScriptCommand{"check", running, check},       ScriptCommand{"type", running, type},
                              ScriptCommand{"tick", running, tick},         ScriptCommand{"select", running, select},
                              ScriptCommand{"deselect", running, deselect}, ScriptCommand{"drag", running, drag},
                              ScriptCommand{"menu", running, menu},         ScriptCommand{"move", running, move},
                              ScriptCommand{"close", running, close},       ScriptCommand{"toolbar", running, toolbar},
                              ScriptCommand{"quit", running, quit}};

}  // namespace

std::span<const ScriptCommand> gestureCommands() { return commands; }

}  // namespace tarvo
