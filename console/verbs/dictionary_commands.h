// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/verbs/command.h"
#include "dict/dict_controller.h"
#include "style/direction.h"

// The verbs on a style's technical dictionaries. Dictionaries are named by their files, ignoring case.
namespace tarvo {

// One list, as the command line names it.
struct NamedList {
  std::string style;  // style_name.h
  Direction direction = Direction::englishToJapanese;
};

// dictionaries N ej|je: what is loaded, in order, then what else could be.
class DictionariesCommand : public Command {
 public:
  explicit DictionariesCommand(NamedList list) : list_(std::move(list)) {}
  ExitStatus run(Console& console) override;

 private:
  NamedList list_;
};

// dictionary add N ej|je NAME…
class AddDictionariesCommand : public Command {
 public:
  AddDictionariesCommand(NamedList list, Names names) : list_(std::move(list)), names_(std::move(names)) {}
  ExitStatus run(Console& console) override;

 private:
  NamedList list_;
  Names names_;
};

// dictionary remove N ej|je NAME…
class RemoveDictionariesCommand : public Command {
 public:
  RemoveDictionariesCommand(NamedList list, Names names) : list_(std::move(list)), names_(std::move(names)) {}
  ExitStatus run(Console& console) override;

 private:
  NamedList list_;
  Names names_;
};

// dictionary move N ej|je NAME POSITION: positions count from 1.
class MoveDictionaryCommand : public Command {
 public:
  MoveDictionaryCommand(NamedList list, std::string name, int position)
      : list_(std::move(list)), name_(std::move(name)), position_(position) {}
  ExitStatus run(Console& console) override;

 private:
  NamedList list_;
  std::string name_;
  int position_;
};

}  // namespace tarvo
