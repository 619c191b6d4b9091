// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/new_dictionary_command.h"

#include "app/product.h"
#include "console/verbs/dictionary_services.h"
#include "console/verbs/refusal.h"
#include "console/verbs/style_reading.h"
#include "dict/dictionary_creation.h"
#include "dict/dictionary_names.h"
#include "dict/user_lists.h"
#include "platform/services/file_service.h"
#include "platform/services/product_paths.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

const char* keyOf(NewNameProblem problem) {
  switch (problem) {
    case NewNameProblem::empty: return "Refusal.EmptyName";
    case NewNameProblem::forbidden: return "Refusal.ForbiddenName";
    case NewNameProblem::reserved: return "Refusal.ReservedName";
    case NewNameProblem::tooLong: return "Refusal.LongName";
    case NewNameProblem::exists: break;
  }
  return "Refusal.NameExists";
}

DictController& listOf(UserLists& lists, DictionaryKind kind, Direction direction) {
  const bool isEnglish = direction == Direction::englishToJapanese;
  if (kind == DictionaryKind::memory) return isEnglish ? lists.ejUTMAController : lists.jeUTMAController;
  return isEnglish ? lists.ejUDController : lists.jeUDController;
}

}  // namespace

ExitStatus NewDictionaryCommand::run(Console& console) {
  Product& product = console.product;
  if (const std::optional<Problem> failure = takeLock(console)) return tell(console, *failure);
  noteUnreadStyles(console);
  UserLists lists(dictionaryServices(product));
  lists.setUp();
  const std::string name = trimmed(name_);
  const DictionaryNames names{product.files(), product.texts(), product.paths()};
  if (const auto problem = names.problemWith(kind_, direction_, name, forbiddenInNames)) {
    return tell(console, Refusal{name, keyOf(*problem), ""});
  }
  DictController& list = listOf(lists, kind_, direction_);
  const std::string fileName = fileNameFor(kind_, direction_, name);
  bool isLoaded = false;
  const Result<> made = list.createDictionary(fileName, isLoaded);
  if (!made) return tell(console, made.error());
  // Without its template a dictionary counts as made, and there is no file.
  if (product.files().isAbsent(list.getDicPath(fileName))) {
    const DiskPath path = product.bundle().folder() / templateName(direction_);
    return tell(console, Failure{path.text(), Attempt::copy, Reason::missingResource});
  }
  say(console, {{fileName}, std::nullopt});
  return ExitStatus::done;
}

}  // namespace tarvo
