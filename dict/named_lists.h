// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <expected>
#include <optional>
#include <string>

#include "dict/dict_controller.h"
#include "dict/list_edits.h"
#include "platform/plist/property_list.h"

// The technical dictionaries of styles by the names of their files, ignoring case: what a verb lists and edits without
// any control. Duty: know what a list holds and could hold, and refuse what it cannot. Not: showing, telling.
namespace tarvo {

class StyleStore;

struct ListContents {
  Names loaded;                   // in the style's order, as far as they are on the disk
  Names available;                // the others in the folder
  Names missing;                  // in the style's order, those without a file
  std::optional<Failure> unread;  // why the folder cannot be read: then nothing is known to be missing
};
// The names that the style has stored for the direction, whether or not they are on the disk.
Names storedNames(const Dictionary& record, Direction direction);

// Only reads: not even a missing common dictionary is made.
ListContents readList(const DictController::Services& services, const Dictionary& record, Direction direction);

// The files of a technical folder whose names no style file can hold.
Names namesThatCannotBeKept(const DictController::Services& services, Direction direction);

struct ListProblem {
  // unkeepable: a style file cannot hold the name. noPosition: name is the position. unread: the folder, because of
  // why.
  enum class Kind { noHalf, unknown, notLoaded, unkeepable, tooMany, noPosition, unread };
  Kind kind;
  std::string name;
  Failure why = {};
};

class NamedLists {
 public:
  NamedLists(StyleStore& store, const DictController::Services& services);
  // Each is one edit (list_edits.h), or a problem and no edit. The answer: names without a file, which the list lost
  // with the edit. A list that holds none of its files at all keeps the names: the dictionaries' disk may just be away.
  // Behind those that are loaded, in the order in which the folder lists them; what is loaded already stays.
  std::expected<Names, ListProblem> add(ListPlace place, const Names& names);
  // What is not loaded is passed over.
  std::expected<Names, ListProblem> remove(ListPlace place, const Names& names);
  // position: where it stands afterwards among the loaded ones, from 1.
  std::expected<Names, ListProblem> move(ListPlace place, const std::string& name, int position);

 private:
  struct Opened {
    DictController list;
    ListContents contents;
  };
  std::expected<Opened, ListProblem> open(ListPlace place) const;
  StyleStore& store_;
  DictController::Services services_;
  ListEdits edits_;
};

}  // namespace tarvo
