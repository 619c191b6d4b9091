// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/verbs/command.h"
#include "style/dictionary_kind.h"

namespace tarvo {

// new ej|je user|memory NAME: an empty user dictionary or translation memory, by the rules of the sheet of the style
// pane. A file that was not made is told with the reason, where the window keeps silent. No style is touched.
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
