// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "console/script/script_error.h"
#include "platform/controls/table_view.h"

namespace tarvo {

class Button;
class CheckBox;
class MenuItem;
class PopUpButton;
class SegmentedControl;
class TabView;
class TextField;
class Toolbar;
class Window;

// A gesture that a user cannot make: the control is out of reach, the item a divider, the row not there.
struct NotReachable : ScriptError {
  using ScriptError::ScriptError;
};

// The user's hand. MemoryHand works the controls themselves; the hand over the window works the real widgets.
// Duty: make one gesture, throw NotReachable where nothing is there to be worked (a divider, a disabled segment, a row
// beyond the table or hidden by a filter). Not: asking whether a control may be reached, which the caller has done
// (Windows::isReachable).
class Hand {
 public:
  virtual ~Hand() = default;
  virtual void press(Button& button) = 0;
  virtual void choose(PopUpButton& popup, int index) = 0;  // also the item that is shown
  virtual void choose(MenuItem& item) = 0;
  virtual void click(SegmentedControl& control, int segment) = 0;  // also the chosen one
  virtual void selectPage(TabView& tab, int page) = 0;
  virtual void check(CheckBox& box, bool on) = 0;  // nothing happens when it is so already
  virtual void type(TextField& field, std::string_view text) = 0;
  // Of a box that shows it already nothing changes; its row is selected all the same.
  virtual void tick(TableView& table, int row, bool on) = 0;
  virtual void select(TableView& table, const std::vector<int>& rows) = 0;  // no rows: deselects
  virtual void drag(TableView& table, const std::vector<int>& rows, TableView& target, int row,
                    DropOperation operation) = 0;
  virtual void move(Window& window, float x, float y) = 0;
  virtual void close(Window& window) = 0;
  virtual void showToolbar(Toolbar& toolbar, bool shown) = 0;
  virtual void orderToolbar(Toolbar& toolbar, const std::vector<std::string>& identifiers) = 0;
  // Asked after every line: "" or the first control whose view shows something else than its state, and what.
  virtual std::string outOfStep() = 0;
};

}  // namespace tarvo
