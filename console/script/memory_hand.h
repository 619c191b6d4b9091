// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "console/script/hand.h"

namespace tarvo {

// The hand that works the controls themselves.
class MemoryHand : public Hand {
 public:
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
  std::string outOfStep() override { return {}; }  // there is no view
};

}  // namespace tarvo
