// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/killed_programs.h"

#include <iostream>

#include "tests/support/shell.h"

namespace tarvo::test {

void killWhileItEdits(const std::string& shell, const std::string& program, int styles) {
  const int rounds = styles < 1000 ? 30 : 8;
  std::cout << outputOf("python3 -B " + quoted(TARVO_SOURCE_DIR "/tests/soak/killed_programs.py") + ' ' + shell + ' ' +
                        quoted(program) + ' ' + std::to_string(styles) + ' ' + std::to_string(rounds) + " 1 2>&1");
}

}  // namespace tarvo::test
