// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/operations.h"

#include <algorithm>
#include <vector>

#include "app/program.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

using Arguments = std::span<const std::string>;
using Answer = std::optional<PropertyList>;

int number(Arguments arguments) { return leadingInteger(arguments.front()); }

// An operation on a room that takes one integer and answers nothing.
template <class Call>
Operation withNumber(std::string_view name, Call call) {
  return {name, 1, [call](Program& program, Arguments arguments) -> Answer {
            call(program.rooms(), number(arguments));
            return std::nullopt;
          }};
}

// One that takes one integer and answers.
template <class Call>
Operation answering(std::string_view name, Call call) {
  return {name, 1, [call](Program& program, Arguments arguments) -> Answer {
            return PropertyList(call(program.rooms(), number(arguments)));
          }};
}

Direction directionOf(int isEJ) { return isEJ != 0 ? Direction::englishToJapanese : Direction::japaneseToEnglish; }

// Codes from 0 to 5: even ones mean the buttons of English to Japanese, but only 0 its table.
void updateButton(Rooms& rooms, int code) {
  if (code >= 0 && code <= 5) rooms.lists.updateButton(directionForTag(code % 2), directionForTag(code));
}

Answer setNotSelectedArray(Program& program, Arguments arguments) {
  const Arguments names = arguments.first(arguments.size() - 1);
  const auto kind = dictionaryKindForNumber(leadingInteger(arguments.back()));
  if (kind) program.rooms().picker.setNotSelectedArray(Names(names.begin(), names.end()), *kind);
  return std::nullopt;
}

// Rows count as they are remembered: the Office table's, then the mail table's.
Answer getInstallStatus(Program& program, Arguments arguments) {
  const AddinLists& addins = program.rooms().addins;
  std::vector<AddinEntry> rows = addins.fOfficeAddinArray();
  rows.insert(rows.end(), addins.fMailAddinArray().begin(), addins.fMailAddinArray().end());
  const int row = number(arguments);
  if (row < 0 || static_cast<std::size_t>(row) >= rows.size()) return std::nullopt;
  return addins.getInstallStatus(rows[static_cast<std::size_t>(row)]);
}

const Operation all[] = {
    withNumber("style.setupStyleData2", [](Rooms& rooms, int index) { rooms.display.setupStyleData2(index); }),
    withNumber("style.setSelection", [](Rooms& rooms, int index) { rooms.store.setSelection(index); }),
    withNumber("style.setSelectSeg", [](Rooms& rooms, int tool) { rooms.chooser.setSelectSeg(tool); }),
    withNumber("style.doEnabledButtons",
               [](Rooms& rooms, int tool) { rooms.chooser.doEnabledButtons(toolForPlace(tool)); }),
    withNumber("style.writeUpdateDicTarvoPlist",
               [](Rooms& rooms, int direction) { rooms.lists.writeUpdateDicTarvoPlist(directionForTag(direction)); }),
    withNumber("style.updateButton", updateButton),
    withNumber("style.setSelectedDic", [](Rooms& rooms, int isEJ) { rooms.loading.setSelectedDic(directionOf(isEJ)); }),
    withNumber("style.setNonSelectionDic",
               [](Rooms& rooms, int isEJ) { rooms.loading.setNonSelectionDic(directionOf(isEJ)); }),
    {"style.dicWindowOK2", 0,
     [](Program& program, Arguments) -> Answer {
       program.rooms().loading.dicWindowOK2();
       return std::nullopt;
     }},
    withNumber("style.openMaxOverAlert",
               [](Rooms& rooms, int number) {
                 if (const auto kind = dictionaryKindForNumber(number)) rooms.alerts.openMaxOverAlert(*kind);
               }),
    answering("style.isStartedApplication",
              [](Rooms& rooms, int tool) { return rooms.guard.isStartedApplication(tool); }),
    withNumber("style.alertStartedApplication",
               [](Rooms& rooms, int kind) { rooms.guard.alertStartedApplication(kind); }),
    {"picker.setNotSelectedArray", 1, setNotSelectedArray, true},
    answering("picker.getCheckedArray",
              [](Rooms& rooms, int tag) {
                const auto kind = dictionaryKindForNumber(tag);
                const Names names = kind ? rooms.picker.getCheckedArray(*kind) : Names{};
                return Array(names.begin(), names.end());
              }),
    {"picker.setCreatedDictionary", 2,
     [](Program& program, Arguments arguments) -> Answer {
       const auto kind = dictionaryKindForNumber(leadingInteger(arguments[1]));
       if (kind) program.rooms().picker.setCreatedDictionary(arguments[0], *kind);
       return std::nullopt;
     }},
    answering("picker.isStartedApplication",
              [](Rooms& rooms, int tool) { return rooms.picker.isStartedApplication(tool); }),
    {"style.readImportStyle", 1,
     [](Program& program, Arguments arguments) -> Answer {
       return program.styles().readImportStyle(DiskPath(arguments.front()));
     },
     false, true},
    {"style.getOSVersion", 0, [](Program& program, Arguments) -> Answer { return program.styles().getOSVersion(); }},
    {"manager.createMailScriptFolder", 0,
     [](Program& program, Arguments) -> Answer {
       return program.rooms().mailScripts.createMailScriptFolder().has_value();
     }},
    {"manager.getInstallStatus", 1, getInstallStatus},
};

}  // namespace

std::span<const Operation> operations() { return all; }

const Operation* findOperation(std::string_view name) {
  const auto* found = std::ranges::find(all, name, &Operation::name);
  return found != std::end(all) ? found : nullptr;
}

}  // namespace tarvo
