// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/verbs/command.h"
#include "style/dictionary_kind.h"

namespace tarvo {

// new ej|je user|memory NAME: an empty user dictionary or translation memory, through the sheet of the style pane. The
// sheet alone decides about the name. A file that was not made is told with the reason, where the window keeps silent.
class NewDictionaryCommand : public Command {
 public:
  // name: without extension.
  NewDictionaryCommand(Direction direction, DictionaryKind kind, std::string name)
      : direction_(direction), kind_(kind), name_(std::move(name)) {}
  ExitStatus run(Console& console) override;

 private:
  Direction direction_;
  DictionaryKind kind_;
  std::string name_;
};

}  // namespace tarvo
