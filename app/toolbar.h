// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/controls.h"
#include "platform/plist/property_list.h"

namespace tarvo {

// The main window's toolbar as state: which items it shows, in which order, which one is selected.
// Items are buttons; those that are not shown are hidden and so not reachable.
class Toolbar : public Control {
 public:
  enum class DisplayMode { iconAndLabel, iconOnly, labelOnly };
  Toolbar(Outlets& owner, std::string_view outlet) : Control(owner, outlet, Kind::toolbar) {}

  // Every item that there is, in the default order. Not owned.
  struct Item {
    std::string identifier;
    Button* button;
    View* view = nullptr;  // a view of the item's own; it gets the size of the pane that the item shows
  };
  void setAllowedItems(std::vector<Item> items);
  const std::vector<Item>& allowedItems() const { return allowed_; }
  Button* item(std::string_view identifier) const;  // null for an unknown one
  View* viewOf(std::string_view identifier) const;  // null for an item without one

  const std::vector<std::string>& order() const { return order_; }  // identifiers of the shown items
  bool isShown() const { return shown_; }
  DisplayMode displayMode() const { return mode_; }
  const std::string& selectedItemIdentifier() const { return selected_; }
  void setSelectedItemIdentifier(std::string identifier);

  // What a customisation is kept as between runs, and back. Unknown identifiers are dropped; an empty order is the
  // default.
  Dictionary configuration() const;
  void applyConfiguration(const Dictionary& configuration);

  // didToggle is told when it comes or goes, by whomever.
  void setShown(bool shown);

  void userShow(bool shown);
  void userOrder(std::vector<std::string> identifiers);
  void userDisplay(DisplayMode mode);
  std::function<void()> didCustomize;         // after each gesture above
  std::function<void(bool shown)> didToggle;  // when it came or went

 private:
  void setOrder(std::vector<std::string> identifiers);
  std::vector<Item> allowed_;
  std::vector<std::string> order_;
  std::string selected_;
  DisplayMode mode_ = DisplayMode::iconAndLabel;
  bool shown_ = true;
};

}  // namespace tarvo
