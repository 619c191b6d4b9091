// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dict/dict_controller.h"
#include "dict/new_dictionary_request.h"
#include "dict/new_dictionary_sheet.h"
#include "platform/controls/controls.h"
#include "platform/controls/table_view.h"
#include "platform/controls/windows.h"
#include "style/dictionary_kind.h"

// The picker: a modal window that lists the technical dictionaries of one direction that a style does not use, with
// check boxes. Duty: the lists and their ticks, the filter, its copy of the new-dictionary sheet. Not: adding anything
// to a style, which the style pane does when it has read the ticks. Tables and folder buttons bear the
// number of their kind as their tag. Lists keep their content until the next setNotSelectedArray.
namespace tarvo {

class NotificationCenter;
class Opener;
class PaneAlerts;
class RunningApplicationGuard;

namespace picker_columns {
inline constexpr const char *check = "Value", *name = "dicName";
}  // namespace picker_columns

struct PickerOutlets : Outlets {
  Window myWindow{*this, "myWindow"};
  TabView myTabView{*this, "myTabView"};
  TextField TDTitleField{*this, "TDTitleField", Control::Kind::text};
  TextField UDTitleField{*this, "UDTitleField", Control::Kind::text};
  TextField uTMATitleField{*this, "uTMATitleField", Control::Kind::text};
  TableView techDicTable{*this, "techDicTable"};
  TextField filterField{*this, "filterField"};
  Button selectShownButton{*this, "selectShownButton"}, selectNoneButton{*this, "selectNoneButton"};
  TextField roomText{*this, "roomText", Control::Kind::text};
  Button openTDFolderButton{*this, "openTDFolderButton"}, openUDFolderButton{*this, "openUDFolderButton"},
      openTMAFolderButton{*this, "openTMAFolderButton"};
  Button newUDButton{*this, "newUDButton"}, newTMAButton{*this, "newTMAButton"};
  Button okButton{*this, "okButton"}, cancelButton{*this, "cancelButton"};
  TableView UserDicTable{*this, "UserDicTable"}, UserTMATable{*this, "UserTMATable"};       // not laid out
  Button ejEditTDButton{*this, "ejEditTDButton"}, jeEditTDButton{*this, "jeEditTDButton"};  // not laid out
  Window newDicWindow{*this, "newDicWindow"};
  TextField newDicNameField{*this, "newDicNameField"};
  TextField newDicTitleField{*this, "newDicTitleField", Control::Kind::text};
  TextField newDicFolderNameField{*this, "newDicFolderNameField", Control::Kind::text};
  TextField newDicFolderTitleField{*this, "newDicFolderTitleField", Control::Kind::text};
  Button newDicOKButton{*this, "newDicOKButton"}, newDicCancelButton{*this, "newDicCancelButton"};
  PickerOutlets() : Outlets("picker") {}
};

class TechDicController : public TableDataSource, public TableDelegate {
 public:
  // Who works together here. Not owned.
  struct Collaborators {
    PickerOutlets& outlets;
    Windows& windows;
    const Opener& opener;
    PaneAlerts& alerts;
    RunningApplicationGuard& guard;
    NotificationCenter& notifications;
  };
  TechDicController(const Collaborators& with, DictionaryNameChecks::Services services);

  // Shows the picker for a direction and returns when it was closed.
  void openEJList() { open(Direction::englishToJapanese); }
  void openJEList() { open(Direction::japaneseToEnglish); }
  // Both close the window and end its run; who closed it is not recorded.
  void OKButtonAction() { close(); }
  void CancelButtonAction() { close(); }
  Names getCheckedArray(DictionaryKind kind);  // file names of the ticked rows, in list order
  // No names: the list stays as it is, and is read anew.
  void setNotSelectedArray(const std::optional<Names>& names, DictionaryKind kind);
  void OpenFolder(int senderTag);
  // What stands in the list of technical dictionaries instead of rows; "" shows the rows.
  void setPlaceholder(const std::string& text) { with_.outlets.techDicTable.setPlaceholder(text); }
  // How many dictionaries the style's list can still take; the text beside the list counts the ticks off.
  void setRoom(int room);
  void selectShown();  // ticks every row that the filter shows
  void selectNone();   // unticks all rows
  // Shows the rows whose display names contain the filter field's text, ignoring case; changes no tick.
  void filterDidChange();

  void newUD(int senderTag);
  void newDicOKButtonAction() { sheet_.newDicOKButtonAction(); }
  void newDicCancelButtonAction() { sheet_.newDicCancelButtonAction(); }
  // Puts a new dictionary, ticked, into the list of its kind, in place of one of that name; nothing for technical ones.
  void setCreatedDictionary(const std::string& name, DictionaryKind kind);
  bool isStartedApplication(int tool);

  Direction direction() const { return request_.direction; }
  const NewDictionaryRequest& request() const { return request_; }
  DictionaryNameChecks& checks() { return sheet_.checks(); }

  int numberOfRowsInTableView(TableView& table) override;  // -1 for all but the technical dictionaries
  CellValue objectValueForTableColumn(TableView& table, std::string_view column, int row) override;
  void setObjectValue(TableView& table, bool value, std::string_view column, int row) override;

 private:
  struct Entry {
    std::string name;
    bool check = false;
    std::string folded = {};  // what the filter looks into, for the list that has one
  };
  using Entries = std::vector<Entry>;
  void open(Direction direction);
  void close();
  void openSheet(int senderTag);
  Entries& entries(DictionaryKind kind);
  TableView& table(DictionaryKind kind);
  void showRoom();
  Collaborators with_;
  const Texts& texts_;
  const ProductPaths& paths_;
  NewDictionaryRequest request_;
  NewDictionarySheet sheet_;
  Entries techDicArray_, UserDicArray_, UserTMAArray_;
  std::vector<bool> shown_;  // per row of techDicArray_, what the filter lets through
  int room_ = 0;
};

}  // namespace tarvo
