// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "dict/dict_controller.h"
#include "platform/controls/controls.h"
#include "platform/controls/table_view.h"

// Editing of the technical dictionary lists in the style pane. Every edit goes through the direction's list model and
// is written into the shown style at once. A direction travels as an integer, the tag of its table and buttons: 0
// English to Japanese, any other Japanese to English.
namespace tarvo {

class RunningApplicationGuard;
class StyleStore;

struct ListOutlets : Outlets {
  TabView directionTab{*this, "directionTab"};  // pages "EJTab", "JETab"
  TabView ejListTab{*this, "ejListTab"}, jeListTab{*this, "jeListTab"};
  TableView ejTDTable{*this, "ejTDTable"}, jeTDTable{*this, "jeTDTable"};
  Button ejLoadDicButton{*this, "ejLoadDicButton"}, jeLoadDicButton{*this, "jeLoadDicButton"};
  Button ejRaiseDicButton{*this, "ejRaiseDicButton"}, jeRaiseDicButton{*this, "jeRaiseDicButton"};
  Button ejDownDicButton{*this, "ejDownDicButton"}, jeDownDicButton{*this, "jeDownDicButton"};
  Button ejRemoveDicButton{*this, "ejRemoveDicButton"}, jeRemoveDicButton{*this, "jeRemoveDicButton"};
  ListOutlets() : Outlets("style") {}
};

class DictionaryListEditing {
 public:
  DictionaryListEditing(StyleStore& store, const PopUpButton& stylePopup, ListOutlets& outlets, const Texts& texts,
                        DictController::Services services, RunningApplicationGuard& guard);

  DictController ejTDController, jeTDController;
  DictController& getActiveDictController(int direction) { return direction != 0 ? jeTDController : ejTDController; }
  TableView& getActiveTableView(int direction) { return direction != 0 ? outlets_.jeTDTable : outlets_.ejTDTable; }

  void raiseUpTD(int senderTag);
  void raiseDownTD(int senderTag);
  void removeTD(int senderTag);
  // Stores the loaded list under "TD" of the style menu's style; an empty one removes the key.
  void writeUpdateDicTarvoPlist(int direction);
  // Enables the four buttons of a direction: codes 0 to 5, even ones English to Japanese.
  void updateButton(int code);
  // Keeps the tab state and the buttons in line with the tab that was chosen, known by its label.
  void didSelectTabViewItem(std::string_view label);

  int baseTabKey() const { return baseTabKey_; }  // 0: the English-to-Japanese tab, 100: the other
  int currentTabKey() const { return currentTabKey_; }
  int currentEJKey() const { return currentEJKey_; }  // 1 technical, 2 user dictionaries, 3 memories
  int currentJEKey() const { return currentJEKey_; }

 private:
  void move(int senderTag, int step);
  StyleStore& store_;
  const PopUpButton& stylePopup_;
  ListOutlets& outlets_;
  const Texts& texts_;
  RunningApplicationGuard& guard_;
  int baseTabKey_ = 0, currentTabKey_ = 1, currentEJKey_ = 1, currentJEKey_ = 1;
};

}  // namespace tarvo
