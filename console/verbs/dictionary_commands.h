// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "console/verbs/command.h"
#include "dict/dict_controller.h"

// The verbs on a style's technical dictionaries. NAME is a file name, ignoring case.
namespace tarvo {

class Hand;
class Program;
class VerbProgram;
struct DictionaryLists;

// One list: a style and a direction.
struct ListPlace {
  int style = 0;
  Direction direction = Direction::englishToJapanese;
};

// dictionaries N ej|je: what is loaded, in order, then what else could be.
class DictionariesCommand : public Command {
 public:
  DictionariesCommand(ListPlace place, bool json) : place_(place), json_(json) {}
  ExitStatus run(Console& console) override;

 private:
  ListPlace place_;
  bool json_;
};

// What the verbs that edit a list have in common: nothing changes before every name is known to be there.
class ListEditCommand : public Command {
 public:
  ExitStatus run(Console& console) final;

 protected:
  ListEditCommand(ListPlace place, Names names) : place_(place), names_(std::move(names)) {}
  // Why this cannot be done with these lists; "" when it can.
  virtual std::string problem(const DictionaryLists& lists) const = 0;
  // The gestures, in a program that shows the style and the direction. lists: as they are there.
  virtual void act(VerbProgram& verb, Program& program, Hand& hand, const DictionaryLists& lists) = 0;
  ListPlace place_;
  Names names_;

 private:
  ExitStatus actOn(Console& console);
};

// dictionary N ej|je add NAME…: one visit to the picker, which adds what is ticked in its own order.
class AddDictionariesCommand : public ListEditCommand {
 public:
  AddDictionariesCommand(ListPlace place, Names names) : ListEditCommand(place, std::move(names)) {}

 private:
  std::string problem(const DictionaryLists& lists) const override;
  void act(VerbProgram& verb, Program& program, Hand& hand, const DictionaryLists& lists) override;
};

// dictionary N ej|je remove NAME
class RemoveDictionaryCommand : public ListEditCommand {
 public:
  RemoveDictionaryCommand(ListPlace place, std::string name) : ListEditCommand(place, {std::move(name)}) {}

 private:
  std::string problem(const DictionaryLists& lists) const override;
  void act(VerbProgram& verb, Program& program, Hand& hand, const DictionaryLists& lists) override;
};

// dictionary N ej|je move NAME POSITION: drags it there; positions count from 1.
class MoveDictionaryCommand : public ListEditCommand {
 public:
  MoveDictionaryCommand(ListPlace place, std::string name, int position)
      : ListEditCommand(place, {std::move(name)}), position_(position) {}

 private:
  std::string problem(const DictionaryLists& lists) const override;
  void act(VerbProgram& verb, Program& program, Hand& hand, const DictionaryLists& lists) override;
  int position_;
};

}  // namespace tarvo
