// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace tarvo {

// Runs a script text of the desktop's scripting language; answers its result's text, nothing when it has none.
class ScriptRunner {
 public:
  virtual ~ScriptRunner() = default;
  virtual std::optional<std::string> runScript(const std::string& source) = 0;
};

}  // namespace tarvo
