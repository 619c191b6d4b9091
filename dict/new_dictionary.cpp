// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/new_dictionary.h"

#include "dict/dictionary_list_editing.h"
#include "dict/running_application_guard.h"
#include "dict/user_list_rows.h"
#include "dict/user_lists.h"
#include "platform/services/notification_center.h"
#include "style/pane_alerts.h"
#include "style/process_flags.h"

namespace tarvo {
namespace {

// Two sibling tools show the user's lists themselves and store none of them in a style.
constexpr int toolWithDictionaries = 5, toolWithMemories = 6;

struct Meaning {
  int tag, kind;
  bool isEJ;
};
constexpr Meaning meanings[] = {
    {10, userDictionaryKind, true}, {11, userDictionaryKind, false}, {12, memoryKind, true}, {13, memoryKind, false}};

std::string_view promptKey(const NewDictionaryRequest& request) {
  if (request.dTypeNum == userDictionaryKind) return request.isEJ ? "NewEJUDText" : "NewJEUDText";
  return request.isEJ ? "NewEJTMAText" : "NewJETMAText";
}

}  // namespace

NewDictionary::NewDictionary(const Collaborators& with, DictionaryNameChecks::Services services)
    : with_(with),
      sheet_({with.outlets.NewDicWindow, with.outlets.NewDicNameField, with.outlets.NewDicText,
              with.outlets.NewDicFolderNameField, with.outlets.NewDicFolderTitleField},
             with.request, {.forbidden = {".", ":", "/", "\\"}, .tellsOverlongNamesOfOddKinds = true}, services,
             with.windows) {}

void NewDictionary::newUD(int senderTag) {
  NewDictionaryRequest& request = with_.request;
  request.isEJ = with_.lists.baseTabKey() == 0;
  request.dTypeNum = senderTag;
  for (const Meaning& meaning : meanings) {
    if (meaning.tag != senderTag) continue;
    request.dTypeNum = meaning.kind;
    request.isEJ = meaning.isEJ;
  }
  sheet_.begin(promptKey(request), with_.myWindow,
               [this](int returnCode) { sheetDidEnd(with_.outlets.NewDicWindow, returnCode); });
  with_.flags.gMenuControllFlag = true;
}

void NewDictionary::sheetDidEnd(const Window& sheet, int returnCode) {
  with_.flags.gMenuControllFlag = false;
  if (&sheet == &with_.outlets.NewDicWindow && returnCode == 1) {
    with_.notifications.post(newDicNotification, with_.request.fDictName);
  }
}

NewDictionary::Target NewDictionary::target() {
  UserLists& lists = with_.userLists;
  UserListOutlets& tables = with_.tables;
  const bool isEJ = with_.request.isEJ;
  if (with_.request.dTypeNum == userDictionaryKind) {
    const bool inTool = with_.flags.saveHit == toolWithDictionaries;
    if (isEJ) return {lists.ejUDController, inTool ? tables.ejUDTableView : tables.ejUDTable};
    return {lists.jeUDController, inTool ? tables.jeUDTableView : tables.jeUDTable};
  }
  const bool inTool = with_.flags.saveHit == toolWithMemories;
  if (isEJ) return {lists.ejUTMAController, inTool ? tables.ejUTMATableView : tables.ejTMATable};
  return {lists.jeUTMAController, inTool ? tables.jeUTMATableView : tables.jeTMATable};
}

void NewDictionary::newDicWindowOKAction(const std::string& name) {
  const int kind = with_.request.dTypeNum;
  if (kind != userDictionaryKind && kind != memoryKind) return;
  const Target made = target();
  bool isLoaded = false;
  const bool isCreated = made.controller.createDictionary(name, isLoaded);
  made.table.reloadData();
  if (!isCreated) return;
  if (with_.flags.saveHit == toolWithDictionaries || with_.flags.saveHit == toolWithMemories) {
    with_.guard.alertStartedApplication(kind);
    return;
  }
  const int direction = with_.request.isEJ ? 0 : 1;
  with_.lists.writeUpdateDicTarvoPlist(direction);
  with_.lists.updateButton(direction);
  with_.guard.alertStartedApplication(kind);
  if (!isLoaded) with_.alerts.openMaxOverAlert(kind);
}

}  // namespace tarvo
