// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/new_dictionary_command.h"

#include "app/product.h"
#include "app/program.h"
#include "console/verbs/verb_program.h"
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

// Why there is no file although the name was good.
std::string reasonFor(Product& product, Direction direction, const std::string& path) {
  const std::string name = direction == Direction::englishToJapanese ? "EJStationery" : "JEStationery";
  const std::string type(extensionOf(DictionaryKind::user, direction));
  const std::string made = "no file was made: ";
  if (!product.bundle().resource(name, type)) return made + "the template " + name + "." + type + " is missing";
  return made + product.locations().resolve(path) + " cannot be written";
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
    const std::string path = kind.list.getDicPath(fileName);
    if (console.product.files().exists(path)) return;
    verb.refuse(reasonFor(console.product, direction_, path));
  });
}

}  // namespace tarvo
