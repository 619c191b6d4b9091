// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarvo {

// One line of the doctor.
struct Finding {
  std::string path, what;
  const char* state;  // "ok", "missing", "problem"
  std::string detail;
  std::string cure = {};  // what helps
};

}  // namespace tarvo
