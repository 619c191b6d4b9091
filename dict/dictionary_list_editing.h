// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "dict/dict_controller.h"
#include "dict/list_edits.h"
#include "platform/controls/controls.h"
#include "platform/controls/table_view.h"

// Editing of the technical dictionary lists in the style pane. Every edit goes through the direction's list model and
// is written into the shown style at once; of a list whose folder could not be read none is, which is told. Tables and
// buttons bear their direction as their tag.
namespace tarvo {

class RunningApplicationGuard;
class StyleStore;
class UnreadFolders;

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
                        DictController::Services services, RunningApplicationGuard& guard, UnreadFolders& unread);

  DictController& ejTDController() { return ejTDController_; }
  DictController& jeTDController() { return jeTDController_; }
  DictController& getActiveDictController(Direction direction) {
    return direction == Direction::englishToJapanese ? ejTDController_ : jeTDController_;
  }
  TableView& getActiveTableView(Direction direction) {
    return direction == Direction::englishToJapanese ? outlets_.ejTDTable : outlets_.jeTDTable;
  }

  const ListEdits& edits() const { return edits_; }
  ListPlace placeOf(Direction direction) const { return {stylePopup_.indexOfSelectedItem(), direction}; }  // the shown

  void setUp(Direction direction, DiskPath folder);  // scans it for the first time
  // Scans the direction's folder anew. A list that was out of reach and is not any more has its rows again.
  void rescan(Direction direction);
  // Why nothing can be edited in the direction's list now.
  Result<> mayEdit(Direction direction) const;
  // Whether an edit was refused, which is then told.
  bool isRefused(const Result<>& edit) const;

  void raiseUpTD(int senderTag);
  void raiseDownTD(int senderTag);
  void removeTD(int senderTag);
  // Stores the loaded list under "TD" of the style menu's style; an empty one removes the key.
  void writeUpdateDicTarvoPlist(Direction direction);
  void updateButton(Direction direction) { updateButton(direction, direction); }  // enables its four buttons
  void updateButton(Direction buttons, Direction tableOf);                        // by the rows of this table
  // Keeps the shown direction and the buttons in line with the tab that was chosen, known by its label.
  void didSelectTabViewItem(std::string_view label);
  Direction shownDirection() const { return shownDirection_; }  // of the tab

 private:
  void move(Direction direction, int step);
  DictController ejTDController_, jeTDController_;
  ListEdits edits_;
  const PopUpButton& stylePopup_;
  ListOutlets& outlets_;
  const Texts& texts_;
  RunningApplicationGuard& guard_;
  UnreadFolders& unread_;
  Direction shownDirection_ = Direction::englishToJapanese;
};

}  // namespace tarvo
