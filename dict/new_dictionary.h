// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "dict/new_dictionary_request.h"
#include "dict/new_dictionary_sheet.h"
#include "platform/controls/controls.h"
#include "platform/controls/windows.h"
#include "platform/services/result.h"

// New user dictionaries and translation memories, made from the style pane: its sheet, and what follows when a sheet
// has ended with a name. The file lands in the user's folder; a style never names it.
namespace tarvo {

class DictController;
class DictionaryListEditing;
class FileService;
class NotificationCenter;
class PaneAlerts;
class RunningApplicationGuard;
class TableView;
class UserLists;
struct ProcessFlags;
struct UserListOutlets;

struct NewDictionaryOutlets : Outlets {
  Window NewDicWindow{*this, "NewDicWindow"};
  TextField NewDicNameField{*this, "NewDicNameField"};
  TextField NewDicText{*this, "NewDicText", Control::Kind::text};
  TextField NewDicFolderNameField{*this, "NewDicFolderNameField", Control::Kind::text};
  TextField NewDicFolderTitleField{*this, "NewDicFolderTitleField", Control::Kind::text};
  Button NewDicOKButton{*this, "NewDicOKButton"}, NewDicCancelButton{*this, "NewDicCancelButton"};
  // Tags 10 to 13 choose kind and direction.
  MenuItem newEJUDMenu{*this, "newEJUDMenu"}, newJEUDMenu{*this, "newJEUDMenu"}, newEJTMAMenu{*this, "newEJTMAMenu"},
      newJETMAMenu{*this, "newJETMAMenu"};
  Button ejUDNewButton{*this, "ejUDNewButton"}, jeUDNewButton{*this, "jeUDNewButton"},
      ejTMANewButton{*this, "ejTMANewButton"}, jeTMANewButton{*this, "jeTMANewButton"};
  Button ejUDFolderButton{*this, "ejUDFolderButton"}, jeUDFolderButton{*this, "jeUDFolderButton"},
      ejTMAFolderButton{*this, "ejTMAFolderButton"}, jeTMAFolderButton{*this, "jeTMAFolderButton"};
  NewDictionaryOutlets() : Outlets("style") {}
};

class NewDictionary {
 public:
  // Who works together here. Not owned.
  struct Collaborators {
    NewDictionaryOutlets& outlets;
    UserListOutlets& tables;
    Window& myWindow;  // the main window
    NewDictionaryRequest& request;
    DictionaryListEditing& lists;
    UserLists& userLists;
    ProcessFlags& flags;
    PaneAlerts& alerts;
    RunningApplicationGuard& guard;
    NotificationCenter& notifications;
    Windows& windows;
  };
  NewDictionary(const Collaborators& with, DictionaryNameChecks::Services services);

  // Opens the sheet, once the window is free; menus leave only the help entries while it is up. The tag of the menu
  // item or button chooses kind and direction; an unknown one is the kind itself, in the direction of the shown tab.
  void newUD(int senderTag);
  void newDicOKButtonAction() { sheet_.newDicOKButtonAction(); }
  void newDicCancelButtonAction() { sheet_.newDicCancelButtonAction(); }
  // Makes the dictionary of that file name, of the kind and direction of the pane's own request, whoever posted it;
  // none for an empty name. What is not made is told, with the cause.
  void newDicWindowOKAction(const std::string& name);
  std::function<void(const Failure& failure)> didFail;
  DictionaryNameChecks& checks() { return sheet_.checks(); }

 private:
  struct Target {
    DictController& controller;
    TableView& table;  // shows the list while the chosen tool is the shown one
  };
  Target target();
  void tell(const Failure& failure) const;
  void openSheet(int senderTag);
  void sheetDidEnd(int returnCode);
  Collaborators with_;
  const FileService& files_;
  NewDictionarySheet sheet_;
};

}  // namespace tarvo
