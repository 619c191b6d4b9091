// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/new_dictionary_command.h"

#include "app/product.h"
#include "app/program.h"
#include "console/verbs/verb_program.h"
#include "platform/services/failure_text.h"
#include "platform/services/file_service.h"
#include "platform/services/notification_names.h"

namespace tarvo {

namespace {

struct Kind {
  MenuItem& menu;
  const DictController& list;
};

Kind kindOf(Program& program, Direction direction, DictionaryKind kind) {
  const bool memory = kind == DictionaryKind::memory;
  NewDictionaryOutlets& sheet = program.interface().newDictionary;
  UserLists& lists = program.rooms().userLists;
  if (direction == Direction::englishToJapanese) {
    return memory ? Kind{sheet.newEJTMAMenu, lists.ejUTMAController} : Kind{sheet.newEJUDMenu, lists.ejUDController};
  }
  return memory ? Kind{sheet.newJETMAMenu, lists.jeUTMAController} : Kind{sheet.newJEUDMenu, lists.jeUDController};
}

// Without its template a dictionary counts as made, and there is no file.
Failure missingTemplate(Product& product, Direction direction) {
  const std::string path = product.bundle().folder() +
                           (direction == Direction::englishToJapanese ? "/EJStationery.eud2" : "/JEStationery.jud");
  return {path, Attempt::copy, Reason::missingResource};
}

}  // namespace

ExitStatus NewDictionaryCommand::run(Console& console) {
  VerbProgram verb(console);
  return verb.run([&](Program& program, Hand& hand) {
    NewDictionaryOutlets& sheet = program.interface().newDictionary;
    const Kind kind = kindOf(program, direction_, kind_);
    std::string fileName;
    program.notifications().onPost = [&fileName](const Notification& posted) {
      if (posted.name == newDicNotification) fileName = posted.object;
    };
    hand.choose(kind.menu);
    hand.type(sheet.NewDicNameField, name_);
    hand.press(sheet.NewDicOKButton);
    program.notifications().onPost = nullptr;
    if (program.windows().hostOf(sheet.NewDicWindow) != nullptr) {  // the name was refused, and told
      hand.press(sheet.NewDicCancelButton);
      return;
    }
    const std::optional<Failure>& failure = program.rooms().newDictionary.notCreated();
    if (!failure && !console.product.files().isAbsent(kind.list.getDicPath(fileName))) return;
    const Failure told = failure ? *failure : missingTemplate(console.product, direction_);
    verb.refuse("no file was made: " + failureText(told, console.product.texts()));
  });
}

}  // namespace tarvo
