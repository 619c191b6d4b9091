// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/new_dictionary.h"

#include "dict/dictionary_creation.h"
#include "dict/dictionary_list_editing.h"
#include "dict/running_application_guard.h"
#include "dict/user_list_rows.h"
#include "dict/user_lists.h"
#include "platform/services/file_service.h"
#include "platform/services/notification_center.h"
#include "platform/services/notification_names.h"
#include "style/pane_alerts.h"
#include "style/process_flags.h"

namespace tarvo {
namespace {

// Two sibling tools show the user's lists themselves and store none of them in a style.
constexpr Tool toolWithDictionaries = Tool::notepad, toolWithMemories = Tool::officeAddins;

struct Meaning {
  int tag;
  DictionaryKind kind;
  Direction direction;
};
constexpr Meaning meanings[] = {{10, DictionaryKind::user, Direction::englishToJapanese},
                                {11, DictionaryKind::user, Direction::japaneseToEnglish},
                                {12, DictionaryKind::memory, Direction::englishToJapanese},
                                {13, DictionaryKind::memory, Direction::japaneseToEnglish}};

std::string_view promptKey(const NewDictionaryRequest& request) {
  const bool isEnglish = request.direction == Direction::englishToJapanese;
  if (request.kind == DictionaryKind::user) return isEnglish ? "NewEJUDText" : "NewJEUDText";
  return isEnglish ? "NewEJTMAText" : "NewJETMAText";
}

}  // namespace

NewDictionary::NewDictionary(const Collaborators& with, DictionaryNameChecks::Services services)
    : with_(with),
      files_(services.files),
      sheet_({with.outlets.NewDicWindow, with.outlets.NewDicNameField, with.outlets.NewDicText,
              with.outlets.NewDicFolderNameField, with.outlets.NewDicFolderTitleField},
             with.request,
             {.forbidden = {std::begin(forbiddenInNames), std::end(forbiddenInNames)},
              .tellsOverlongNamesOfOddKinds = true},
             services, with.windows) {}

void NewDictionary::newUD(int senderTag) {
  with_.windows.covers().whenFree(with_.myWindow, [this, senderTag] { openSheet(senderTag); });
}

void NewDictionary::openSheet(int senderTag) {
  NewDictionaryRequest& request = with_.request;
  request.direction = with_.lists.shownDirection();
  request.kind = dictionaryKindForNumber(senderTag);
  for (const Meaning& meaning : meanings) {
    if (meaning.tag != senderTag) continue;
    request.kind = meaning.kind;
    request.direction = meaning.direction;
  }
  const bool isUp = sheet_.begin(promptKey(request), with_.myWindow, [this](int code) { sheetDidEnd(code); });
  if (isUp) with_.flags.gMenuControllFlag = true;
}

void NewDictionary::sheetDidEnd(int returnCode) {
  with_.flags.gMenuControllFlag = false;
  if (returnCode == 1) with_.notifications.post(newDicNotification, with_.request.fDictName);
}

NewDictionary::Target NewDictionary::target() {
  UserLists& lists = with_.userLists;
  UserListOutlets& tables = with_.tables;
  const bool isEJ = with_.request.direction == Direction::englishToJapanese;
  if (with_.request.kind == DictionaryKind::user) {
    const bool inTool = with_.flags.saveHit == toolWithDictionaries;
    if (isEJ) return {lists.ejUDController, inTool ? tables.ejUDTableView : tables.ejUDTable};
    return {lists.jeUDController, inTool ? tables.jeUDTableView : tables.jeUDTable};
  }
  const bool inTool = with_.flags.saveHit == toolWithMemories;
  if (isEJ) return {lists.ejUTMAController, inTool ? tables.ejUTMATableView : tables.ejTMATable};
  return {lists.jeUTMAController, inTool ? tables.jeUTMATableView : tables.jeTMATable};
}

void NewDictionary::tell(const Failure& failure) const {
  if (didFail) didFail(failure);
}

void NewDictionary::newDicWindowOKAction(const std::string& name) {
  const std::optional<DictionaryKind> kind = with_.request.kind;
  if (kind != DictionaryKind::user && kind != DictionaryKind::memory) return;
  const Target made = target();
  bool isLoaded = false;
  const Result<> created = name.empty() ? Result<>(Failure{name, Attempt::create, Reason::noPath})
                                        : made.controller.createDictionary(name, isLoaded);
  made.table.reloadData();
  if (!created) return tell(created.error());
  // Without its template a dictionary counts as made, and there is no file.
  if (files_.isAbsent(made.controller.getDicPath(name))) {
    tell({templateName(with_.request.direction), Attempt::copy, Reason::missingResource});
  }
  if (with_.flags.saveHit == toolWithDictionaries || with_.flags.saveHit == toolWithMemories) {
    with_.guard.alertStartedApplication(numberOf(*kind));
    return;
  }
  with_.lists.writeUpdateDicTarvoPlist(with_.request.direction);
  with_.lists.updateButton(with_.request.direction);
  with_.guard.alertStartedApplication(numberOf(*kind));
  if (!isLoaded) with_.alerts.openMaxOverAlert(*kind);
}

}  // namespace tarvo
