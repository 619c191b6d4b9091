// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>

#include "console/script/memory_hand.h"

class QWidget;

namespace tarvo {
class Control;
class Registry;
}  // namespace tarvo

namespace tarvo::test {

// The hand that works the real widgets, with events of the mouse and the keyboard.
// Duty: find the widget of a control by name, see that a user can get at it (shown, enabled, nothing over it, not shut
// out by a dialog), work it as a user would. What the window leaves to the window manager (moving it) and what takes
// several gestures there (the order of the toolbar) goes to the control; so does what has no place in its window.
class QtHand : public Hand {
 public:
  // registry: of the window that is up; outlives the hand.
  explicit QtHand(const Registry& registry) : registry_(registry) {}
  void press(Button& button) override;
  void choose(PopUpButton& popup, int index) override;
  void choose(MenuItem& item) override;
  void click(SegmentedControl& control, int segment) override;
  void selectPage(TabView& tab, int page) override;
  void check(CheckBox& box, bool on) override;
  void type(TextField& field, std::string_view text) override;
  void tick(TableView& table, int row, bool on) override;
  void select(TableView& table, const std::vector<int>& rows) override;
  void drag(TableView& table, const std::vector<int>& rows, TableView& target, int row,
            DropOperation operation) override;
  void move(Window& window, float x, float y) override;
  void close(Window& window) override;
  void showToolbar(Toolbar& toolbar, bool shown) override;
  void orderToolbar(Toolbar& toolbar, const std::vector<std::string>& identifiers) override;
  std::string outOfStep() override;

 private:
  template <class W>
  W& widget(const Control& control) const;
  const Registry& registry_;
  MemoryHand state_;  // for what is not laid out
};

// Throws unless a click at that place, in the widget's coordinates, reaches the widget.
void requireInReach(QWidget& widget, QPoint place);

}  // namespace tarvo::test
