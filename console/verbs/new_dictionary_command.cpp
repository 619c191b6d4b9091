// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/new_dictionary_command.h"

#include "app/product.h"
#include "app/program.h"
#include "console/verbs/verb_program.h"
#include "platform/services/file_service.h"

namespace tarvo {

namespace {

struct Kind {
  MenuItem& menu;
  const DictController& list;
};

Kind kindOf(Program& program, int direction, bool memory) {
  NewDictionaryOutlets& sheet = program.interface().newDictionary;
  UserLists& lists = program.rooms().userLists;
  if (direction == 0) {
    return memory ? Kind{sheet.newEJTMAMenu, lists.ejUTMAController} : Kind{sheet.newEJUDMenu, lists.ejUDController};
  }
  return memory ? Kind{sheet.newJETMAMenu, lists.jeUTMAController} : Kind{sheet.newJEUDMenu, lists.jeUDController};
}

// Why there is no file although the name was good.
std::string reasonFor(Product& product, int direction, const std::string& path) {
  const char* name = direction == 0 ? "EJStationery" : "JEStationery";
  const char* type = direction == 0 ? "eud2" : "jud";
  const std::string made = "no file was made: ";
  if (!product.bundle().resource(name, type)) return made + "the template " + name + "." + type + " is missing";
  return made + product.locations().resolve(path) + " cannot be written";
}

}  // namespace

ExitStatus NewDictionaryCommand::run(Console& console) {
  VerbProgram verb(console);
  return verb.run([&](Program& program, Hand& hand) {
    NewDictionaryOutlets& sheet = program.interface().newDictionary;
    const Kind kind = kindOf(program, direction_, memory_);
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
