// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <map>
#include <optional>
#include <string>

namespace tarvo::test {

// Variables of the environment, as they were when this is gone.
class Environment {
 public:
  explicit Environment(const std::map<std::string, std::string>& values) {
    for (const auto& [name, value] : values) {
      const char* present = std::getenv(name.c_str());
      before_[name] = present != nullptr ? std::optional<std::string>(present) : std::nullopt;
      ::setenv(name.c_str(), value.c_str(), 1);
    }
  }
  ~Environment() {
    for (const auto& [name, value] : before_) {
      if (value) ::setenv(name.c_str(), value->c_str(), 1);
      if (!value) ::unsetenv(name.c_str());
    }
  }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

 private:
  std::map<std::string, std::optional<std::string>> before_;
};

}  // namespace tarvo::test
