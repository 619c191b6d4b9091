// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "console/verbs/command.h"

namespace tarvo {

class Hand;
class Program;

// Whether the style menu lets one choose style N of the file as it lies on the disk; tells when it does not.
ExitStatus checkStyleCanBeChosen(Console& console, int index);

// Chooses a style for a verb that works on it; the former one comes back with the end of this object.
class StyleChoice {
 public:
  StyleChoice(Program& program, Hand& hand, int index);
  ~StyleChoice();
  StyleChoice(const StyleChoice&) = delete;
  StyleChoice& operator=(const StyleChoice&) = delete;

 private:
  Program& program_;
  int former_;
};

}  // namespace tarvo
