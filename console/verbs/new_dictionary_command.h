// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/verbs/command.h"

namespace tarvo {

// new ej|je user|memory NAME: an empty user dictionary or translation memory, through the sheet of the style pane. The
// sheet alone decides about the name. A file that was not made is told with the reason, where the window keeps silent.
class NewDictionaryCommand : public Command {
 public:
  // direction: 0 English to Japanese, 1 the other. name: without extension.
  NewDictionaryCommand(int direction, bool memory, std::string name)
      : direction_(direction), memory_(memory), name_(std::move(name)) {}
  ExitStatus run(Console& console) override;

 private:
  int direction_;
  bool memory_;
  std::string name_;
};

}  // namespace tarvo
