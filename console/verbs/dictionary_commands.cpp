// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/dictionary_commands.h"

#include "app/program.h"
#include "console/verbs/dictionary_reading.h"
#include "console/verbs/style_choice.h"
#include "console/verbs/style_reading.h"
#include "console/verbs/text_table.h"
#include "console/verbs/verb_program.h"
#include "platform/plist/json.h"
#include "style/pane_alerts.h"

namespace tarvo {

namespace {

Json jsonFrom(const Names& names) { return Json::List(names.begin(), names.end()); }

// The tables and buttons of one direction in a program.
struct ListControls {
  TableView& table;
  Button &load, &remove;
};

ListControls controlsOf(Program& program, Direction direction) {
  ListOutlets& lists = program.interface().lists;
  if (direction == Direction::englishToJapanese)
    return {lists.ejTDTable, lists.ejLoadDicButton, lists.ejRemoveDicButton};
  return {lists.jeTDTable, lists.jeLoadDicButton, lists.jeRemoveDicButton};
}

DictionaryLists listsIn(Program& program, Direction direction) {
  const DictController& list = program.rooms().lists.getActiveDictController(direction);
  return {list.selectedDictionary().value_or(Names{}), list.notSelectedDictionary()};
}

}  // namespace

ExitStatus DictionariesCommand::run(Console& console) {
  const std::optional<Dictionary> styles = readStyles(console);
  if (!styles) return ExitStatus::refused;
  const Dictionary* record = findStyle(console, *styles, place_.style);
  if (record == nullptr) return ExitStatus::usage;
  const DictionaryLists lists = readDictionaryLists(console.product, *record, place_.direction);
  if (json_) {
    console.out << writeJson(Json::Object{{"loaded", jsonFrom(lists.loaded)}, {"available", jsonFrom(lists.available)}})
                << '\n';
    return ExitStatus::done;
  }
  std::vector<std::vector<std::string>> rows;
  for (const std::string& name : lists.loaded) rows.push_back({std::to_string(rows.size() + 1), name});
  for (const std::string& name : lists.available) rows.push_back({"-", name});
  writeTable(console.out, rows);
  return ExitStatus::done;
}

ExitStatus ListEditCommand::run(Console& console) {
  const ExitStatus status = checkStyleCanBeChosen(console, place_.style);
  if (status != ExitStatus::done) return status;
  const std::optional<Dictionary> styles = readStyles(console);
  const Dictionary* record = styles ? findStyle(console, *styles, place_.style) : nullptr;
  if (record == nullptr) return ExitStatus::usage;
  if (record->dictionary(halfKey(place_.direction)) == nullptr) {
    console.err << "style " << place_.style << " is damaged: it lacks the direction of this list\n";
    return ExitStatus::refused;
  }
  const std::string reason = problem(readDictionaryLists(console.product, *record, place_.direction));
  if (reason.empty()) return actOn(console);
  console.err << reason << '\n';
  return ExitStatus::usage;
}

ExitStatus ListEditCommand::actOn(Console& console) {
  VerbProgram verb(console);
  return verb.run([&](Program& program, Hand& hand) {
    const StyleChoice choice(program, hand, place_.style);
    hand.selectPage(program.interface().lists.directionTab, tagOf(place_.direction));
    // The start may have changed the list: a medical dictionary was installed, say.
    const DictionaryLists lists = listsIn(program, place_.direction);
    if (const std::string reason = problem(lists); !reason.empty()) {
      verb.refuse(reason);
    } else {
      act(verb, program, hand, lists);
    }
  });
}

std::string AddDictionariesCommand::problem(const DictionaryLists& lists) const {
  for (const std::string& name : names_) {
    if (positionOf(lists.loaded, name) >= 0) return name + " is loaded already";
    if (positionOf(lists.available, name) < 0) return "there is no dictionary " + name;
  }
  return {};
}

void AddDictionariesCommand::act(VerbProgram& verb, Program& program, Hand& hand, const DictionaryLists&) {
  Button& load = controlsOf(program, place_.direction).load;
  if (!load.isEnabled()) {
    PaneAlerts(program.services().panels, program.services().texts).openMaxOverAlert(DictionaryKind::technical);
    return;
  }
  PickerOutlets& picker = program.interface().picker;
  verb.duringModalRun([&] {
    const Names offered = listsIn(program, place_.direction).available;
    for (const std::string& name : names_) {
      const int row = positionOf(offered, name);
      if (row >= 0) {
        hand.tick(picker.techDicTable, row, true);
      } else {
        verb.refuse(name + " has vanished");
      }
    }
    hand.press(picker.okButton);
    if (program.windows().modalWindow() != nullptr) hand.press(picker.cancelButton);  // refused, and told
  });
  hand.press(load);
}

std::string RemoveDictionaryCommand::problem(const DictionaryLists& lists) const {
  return positionOf(lists.loaded, names_.front()) < 0 ? names_.front() + " is not loaded" : "";
}

void RemoveDictionaryCommand::act(VerbProgram&, Program& program, Hand& hand, const DictionaryLists& lists) {
  const ListControls controls = controlsOf(program, place_.direction);
  hand.select(controls.table, {positionOf(lists.loaded, names_.front())});
  hand.press(controls.remove);
}

std::string MoveDictionaryCommand::problem(const DictionaryLists& lists) const {
  if (positionOf(lists.loaded, names_.front()) < 0) return names_.front() + " is not loaded";
  const bool exists = position_ >= 1 && position_ <= static_cast<int>(lists.loaded.size());
  return exists ? "" : "the list has no position " + std::to_string(position_);
}

void MoveDictionaryCommand::act(VerbProgram&, Program& program, Hand& hand, const DictionaryLists& lists) {
  TableView& table = controlsOf(program, place_.direction).table;
  const int from = positionOf(lists.loaded, names_.front()), to = position_ - 1;
  // A drop names the gap above a row as it counted before the drag.
  hand.drag(table, {from}, table, to > from ? to + 1 : to, DropOperation::above);
}

}  // namespace tarvo
