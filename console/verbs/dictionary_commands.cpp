// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/dictionary_commands.h"

#include "app/product.h"
#include "console/verbs/dictionary_services.h"
#include "console/verbs/style_name.h"
#include "console/verbs/style_reading.h"
#include "console/verbs/style_session.h"
#include "console/verbs/text_table.h"
#include "platform/plist/json.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

Json jsonFrom(const Names& names) { return Json::List(names.begin(), names.end()); }

Problem problemOf(const ListProblem& problem, const std::string& style) {
  using Kind = ListProblem::Kind;
  switch (problem.kind) {
    case Kind::noHalf: return Refusal{style, "Refusal.NoHalf", problem.name};
    case Kind::unknown: return Refusal{problem.name, "Refusal.NoDictionary", ""};
    case Kind::notLoaded: return Refusal{problem.name, "Refusal.NotLoaded", ""};
    case Kind::unkeepable: return Refusal{problem.name, "Refusal.UnkeepableName", ""};
    case Kind::tooMany: return Refusal{style, "Refusal.TooManyDictionaries", ""};
    case Kind::unread: return problem.why;
    case Kind::noPosition: break;
  }
  return Refusal{style, "Refusal.NoPosition", problem.name};
}

// One operation on the list; names that it lost are told.
template <class Operation>
ExitStatus edit(Console& console, const NamedList& list, Operation operation) {
  StyleSession session(console);
  return session.edit(list.style, [&](int index) -> std::optional<Problem> {
    const std::expected<Names, ListProblem> gone = operation(session.lists(), ListPlace{index, list.direction});
    if (!gone) return problemOf(gone.error(), styleName(*session.store().getStyleAtIndex(index)));
    for (const std::string& name : *gone) note(console, {name, "Refusal.Gone", ""});
    return std::nullopt;
  });
}

}  // namespace

ExitStatus DictionariesCommand::run(Console& console) {
  if (const std::optional<UsageError> error = wrongStyleWord(list_.style)) return tell(console, *error);
  const ReadStyles styles = readStyles(console);
  if (!styles.root) return styles.status;
  const auto index = styleNamed(*styles.root, console.product.texts(), list_.style, true);
  if (!index) return tell(console, index.error());
  const Dictionary& record = *(*styles.root->array(keyNameStyle))[static_cast<std::size_t>(*index)].dictionary();
  const ListContents contents = readList(dictionaryServices(console.product), record, list_.direction);
  if (contents.unread) return tell(console, *contents.unread);
  if (console.json) {
    console.out << writeJson(Json::Object{{"loaded", jsonFrom(contents.loaded)},
                                          {"available", jsonFrom(contents.available)},
                                          {"missing", jsonFrom(contents.missing)}})
                << '\n';
    return styles.status;
  }
  std::vector<std::vector<std::string>> rows;
  for (const std::string& name : contents.loaded) rows.push_back({std::to_string(rows.size() + 1), name});
  for (const std::string& name : contents.available) rows.push_back({"-", name});
  writeTable(console.out, rows);
  return styles.status;
}

ExitStatus AddDictionariesCommand::run(Console& console) {
  return edit(console, list_, [this](NamedLists& lists, ListPlace place) { return lists.add(place, names_); });
}

ExitStatus RemoveDictionariesCommand::run(Console& console) {
  return edit(console, list_, [this](NamedLists& lists, ListPlace place) { return lists.remove(place, names_); });
}

ExitStatus MoveDictionaryCommand::run(Console& console) {
  return edit(console, list_,
              [this](NamedLists& lists, ListPlace place) { return lists.move(place, name_, position_); });
}

}  // namespace tarvo
